#include "repair/embedded_size.h"

#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/xml_tree.h"

#include <QHash>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 SettingsTreeBytes = 4LL << 20;
constexpr double PointsPerHundredth = 72.0 / 2540.0; // of a millimeter
constexpr double PointsPerTwip = 1.0 / 20.0;

// The head of a metafile: its unit, and its width and height in this unit.
constexpr QByteArrayView MetafileStart = "VCLMTF";
constexpr qsizetype MetafileUnitOffset = 0x16;
constexpr qsizetype MetafileSizeOffset = 0x31;
constexpr qsizetype MetafileHeadSize = MetafileSizeOffset + 8;

std::optional<double> pointsPerUnit(quint16 unit)
{
    switch (unit) {
    case 0:
        return PointsPerHundredth;
    case 8:
        return 1.0;
    case 9:
        return PointsPerTwip;
    default:
        return std::nullopt;
    }
}

QSizeF metafileSize(const QByteArray& bytes)
{
    if (bytes.size() < MetafileHeadSize || !bytes.startsWith(MetafileStart)) {
        return {};
    }
    const char* const data = bytes.constData();
    const auto unit = pointsPerUnit(qFromLittleEndian<quint16>(data + MetafileUnitOffset));
    const auto side = [data](qsizetype offset) {
        return static_cast<double>(qFromLittleEndian<qint32>(data + offset));
    };
    return QSizeF(side(MetafileSizeOffset), side(MetafileSizeOffset + 4)) * unit.value_or(0.0);
}

} // namespace

QRectF visibleArea(const Document& document, const QString& folder)
{
    const auto settings =
        parseTree(document.readMember(folder + "/settings.xml"_L1), SettingsTreeBytes);
    QHash<QString, double> values;
    if (settings) {
        forEachElement(*settings, [&values](const Node& node) {
            values.insert(node.attribute(u"config:name"),
                          node.allText().toDouble() * PointsPerHundredth);
        });
    }
    return {values.value(u"VisibleAreaLeft"_s), values.value(u"VisibleAreaTop"_s),
            values.value(u"VisibleAreaWidth"_s), values.value(u"VisibleAreaHeight"_s)};
}

QSizeF replacementSize(const Document& document, const Node& frame)
{
    const Node* const image = frame.child(u"draw:image");
    QString name = image != nullptr ? image->attribute(u"xlink:href") : QString();
    name = name.startsWith("./"_L1) ? name.sliced(2) : name;
    return name.isEmpty() ? QSizeF() : metafileSize(document.readMember(name));
}

QMarginsF textMargins(const Node* styles, const QRectF& visible)
{
    const Node* const automatic =
        styles != nullptr ? styles->child(u"office:automatic-styles") : nullptr;
    const Node* const layout =
        automatic != nullptr ? automatic->child(u"style:page-layout") : nullptr;
    const Node* const page =
        layout != nullptr ? layout->child(u"style:page-layout-properties") : nullptr;
    if (page == nullptr || visible.isEmpty()) {
        return {};
    }
    const double left = pointsOf(*page, u"fo:margin-left");
    const double right = pointsOf(*page, u"fo:page-width") - pointsOf(*page, u"fo:margin-right");
    return {
        std::clamp(left - visible.left(), 0.0, visible.width() / 2.0),
        std::clamp(pointsOf(*page, u"fo:margin-top") - visible.top(), 0.0, visible.height() / 2.0),
        std::clamp(visible.right() - right, 0.0, visible.width() / 2.0), 0.0};
}

} // namespace repair
