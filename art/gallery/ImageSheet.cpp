#include "art/gallery/ImageSheet.h"

#include "art/gallery/Caption.h"
#include "platform/UIKit/UIImageView.h"
#include "settings/UIImage+Equalizer.h"

#include <array>

namespace brimsound::desktop {

namespace {

constexpr double nameWidth = 130;
constexpr double boxSize = 110;
constexpr double margin = 12;
constexpr double columnGap = 52;
constexpr double headerHeight = 30;
constexpr auto plusPath = "/Library/PreferenceBundles/BrimsoundSettings.bundle/plus@2x.png";

struct Form {
    const char* name;
    RetainPtr<UIImage> (*make)(UIImage&);
};

RetainPtr<UIColor> orange()
{
    return UIColor::colorWithRedGreenBlueAlpha(1, 0.6, 0.1, 1);
}

const std::array<Form, 4> forms { {
    { "Plus", [](UIImage& image) { return retain(&image); } },
    { "Filled with white", [](UIImage& image) { return fillWithColor(image, *UIColor::whiteColor()); } },
    { "Darkened with orange", [](UIImage& image) { return darkenWithColor(image, *orange()); } },
    { "Inverted", [](UIImage& image) { return negative(image); } },
} };

void addRow(UIView& sheet, const std::string& name, double y, UIImage& image)
{
    sheet.addSubview(*caption(name, CGRectMake(0, y, nameWidth, boxSize)));
    for (std::size_t column = 0; column < forms.size(); ++column) {
        const double x = nameWidth + static_cast<double>(column) * (boxSize + columnGap);
        const auto box = make<UIView>(CGRectMake(x, y, boxSize, boxSize));
        box->setBackgroundColor(UIColor::colorWithRedGreenBlueAlpha(0.55, 0.6, 0.68, 1));
        const auto view
            = make<UIImageView>(CGRectMake(margin, margin, boxSize - 2 * margin, boxSize - 2 * margin));
        view->setImage(forms[column].make(image));
        box->addSubview(*view);
        sheet.addSubview(*box);
    }
}

} // namespace

ImageSheet::ImageSheet()
{
    for (std::size_t column = 0; column < forms.size(); ++column) {
        const double x = nameWidth + static_cast<double>(column) * (boxSize + columnGap);
        addSubview(*caption(forms[column].name, CGRectMake(x, 0, boxSize + columnGap, headerHeight)));
    }
    const auto twice = UIImage::imageWithContentsOfFile(plusPath);
    if (!twice)
        return;
    const auto once = UIImage::imageWithCGImage(twice->CGImage());
    addRow(*this, "At 1x", headerHeight, *once);
    addRow(*this, "At 2x", headerHeight + boxSize + margin, *twice);
    setFrame(CGRectMake(0, 0, nameWidth + forms.size() * (boxSize + columnGap) - columnGap,
        headerHeight + 2 * boxSize + margin));
}

} // namespace brimsound::desktop
