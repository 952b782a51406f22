// Draws the parts of the preset list in one picture.
#include "art/gallery/CurveSheet.h"
#include "art/gallery/ImageSheet.h"
#include "platform/desktop/Qt/Snapshot.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/drawing/Theme.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>

namespace {

using namespace brimsound;
using namespace brimsound::desktop;

constexpr double margin = 24;
constexpr double scale = 2;

bool draw(const QString& path)
{
    const auto curves = make<CurveSheet>();
    const auto images = make<ImageSheet>();
    const auto size = curves->bounds().size;
    const auto below = images->bounds().size;
    curves->setFrame({ { margin, margin }, size });
    images->setFrame({ { margin, size.height + 2 * margin }, below });
    const auto window = toolkit::make<toolkit::Window>(toolkit::Size {
        std::max(size.width, below.width) + 2 * margin, size.height + below.height + 3 * margin });
    window->setBackground(toolkit::theme::background);
    window->add(nativeView(*curves));
    window->add(nativeView(*images));
    return writeSnapshot(*window, scale, path);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: gallery FILE.png\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (draw(QString::fromLocal8Bit(argv[1])))
        return 0;
    std::fprintf(stderr, "gallery: the picture \"%s\" cannot be written\n", argv[1]);
    return 1;
}
