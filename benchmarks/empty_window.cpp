// The cost of Qt alone: an empty window as large as the pane's or, with a file name as the argument, a
// picture of it. Runs until it is terminated.
#include <QApplication>
#include <QImage>
#include <QWidget>

#include <cstdio>

int main(int argc, char** argv)
{
    const bool headless = argc > 1;
    if (headless)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(320, 568);
    if (headless) {
        QImage picture(window.size() * 2, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(2);
        window.render(&picture);
        if (!picture.save(QString::fromLocal8Bit(argv[1])))
            return 1;
        std::puts("written");
        std::fflush(stdout);
    } else {
        window.show();
    }
    return QApplication::exec();
}
