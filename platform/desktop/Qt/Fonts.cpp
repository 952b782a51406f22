#include "platform/desktop/Qt/Fonts.h"

#include "platform/desktop/UIKit/Text.h"

#include <QFontDatabase>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace brimsound::desktop {

namespace {

/// A PostScript name consists of a family and, after a hyphen, a style. They are separated here because Qt
/// ignores the weight of a font that it finds by its full name.
struct FaceName {
    QString family;
    QFont::Weight weight = QFont::Normal;
    bool italic = false;
};

FaceName faceNamed(const std::string& postScriptName)
{
    static constexpr std::array<std::pair<const char*, QFont::Weight>, 6> weights { {
        { "UltraLight", QFont::ExtraLight },
        { "Light", QFont::Light },
        { "Medium", QFont::Medium },
        { "SemiBold", QFont::DemiBold },
        { "Bold", QFont::Bold },
        { "Black", QFont::Black },
    } };
    const auto name = QString::fromStdString(postScriptName);
    const auto style = name.section('-', 1);
    FaceName face { name.section('-', 0, 0), QFont::Normal, style.contains("Italic") };
    const auto weight = std::ranges::find_if(
        weights, [&](const auto& entry) { return style.startsWith(QLatin1String(entry.first)); });
    if (weight != weights.end())
        face.weight = weight->second;
    return face;
}

/// Similar fonts to the platform's own text font, which is not free; the most similar one first.
const QStringList& standIns()
{
    static const QStringList families { "Inter", "TeX Gyre Heros", "Liberation Sans", "sans-serif" };
    return families;
}

bool isPlatformFamily(const QString& family)
{
    return family.isEmpty() || family == "HelveticaNeue" || family == "Helvetica";
}

} // namespace

QFont qFont(const toolkit::Font& font)
{
    const auto face = faceNamed(font.name);
    QFont result;
    result.setFamilies(isPlatformFamily(face.family) ? standIns() : QStringList { face.family } + standIns());
    result.setWeight(face.weight);
    result.setItalic(face.italic);
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size))));
    result.setHintingPreference(QFont::PreferVerticalHinting);
    return result;
}

bool fontExists(const std::string& postScriptName)
{
    const auto family = faceNamed(postScriptName).family;
    return !family.isEmpty() && (isPlatformFamily(family) || QFontDatabase::hasFamily(family));
}

} // namespace brimsound::desktop
