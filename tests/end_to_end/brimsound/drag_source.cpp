// A window that is a drag source: a press of the mouse button begins to drag the files of the command line,
// as a file manager does. Prints the action that the target chose.
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

#include <cstdio>

namespace {

class DragSource : public QWidget {
protected:
    void mousePressEvent(QMouseEvent*) override
    {
        QList<QUrl> files;
        for (const auto& file : QCoreApplication::arguments().mid(1))
            files << QUrl::fromLocalFile(file);
        auto* content = new QMimeData;
        content->setUrls(files);
        auto* drag = new QDrag(this);
        drag->setMimeData(content);
        const auto action = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
        std::puts(action == Qt::CopyAction ? "copy" : action == Qt::MoveAction ? "move" : "none");
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    DragSource source;
    source.setWindowTitle("Files");
    source.setGeometry(500, 0, 200, 200);
    source.show();
    return QApplication::exec();
}
