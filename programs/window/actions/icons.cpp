#include "window/actions/icons.h"

#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct IconRow
{
    IconName name;
    const char* path; // lines in a square of 24 by 24
};

constexpr IconRow Icons[] = {
    {IconName::Open, "M3 19V6a1 1 0 0 1 1-1h5l2 3h8a1 1 0 0 1 1 1v2M3 19l3-8h16l-3 8z"},
    {IconName::Save, "M4 4h13l3 3v13H4zM8 4v5h8V4M7 20v-7h10v7"},
    {IconName::Export, "M12 14V3M8 7l4-4 4 4M4 15v5h16v-5"},
    {IconName::Print, "M7 8V3h10v5M7 17H4V8h16v9h-3M7 14h10v7H7z"},
    {IconName::Undo, "M9 6L4 11l5 5M4 11h10a6 6 0 0 1 0 9h-3"},
    {IconName::Redo, "M15 6l5 5-5 5M20 11H10a6 6 0 0 0 0 9h3"},
    {IconName::ZoomIn, "M10 4a6 6 0 1 0 .01 0M14.5 14.5L21 21M10 7.5v5M7.5 10h5"},
    {IconName::ZoomOut, "M10 4a6 6 0 1 0 .01 0M14.5 14.5L21 21M7.5 10h5"},
    {IconName::Fit, "M4 9V4h5M15 4h5v5M20 15v5h-5M9 20H4v-5M8 9h8v6H8z"},
    {IconName::First, "M6 5v14M18 5l-8 7 8 7z"},
    {IconName::Previous, "M16 5l-8 7 8 7z"},
    {IconName::Next, "M8 5l8 7-8 7z"},
    {IconName::Last, "M18 5v14M6 5l8 7-8 7z"},
};

const char* pathOf(IconName name)
{
    for (const IconRow& row : Icons) {
        if (row.name == name) {
            return row.path;
        }
    }
    return nullptr;
}

QByteArray document(const char* path, const QColor& color)
{
    return QByteArrayLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'>"
                             "<path fill='none' stroke-width='1.8' stroke-linejoin='round' "
                             "stroke-linecap='round' stroke='") +
           color.name().toLatin1() + QByteArrayLiteral("' d='") + QByteArray(path) +
           QByteArrayLiteral("'/></svg>");
}

QPixmap drawn(const QByteArray& svg, int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(svg).render(&painter);
    return pixmap;
}

} // namespace

QIcon icon(IconName name, const QPalette& palette)
{
    const char* path = pathOf(name);
    if (path == nullptr) {
        return {};
    }
    QIcon result;
    for (const int side : {16, 24, 32, 48}) {
        const auto text = [&palette](QPalette::ColorGroup group) {
            return palette.color(group, QPalette::WindowText);
        };
        result.addPixmap(drawn(document(path, text(QPalette::Active)), side));
        result.addPixmap(drawn(document(path, text(QPalette::Disabled)), side), QIcon::Disabled);
    }
    return result;
}

QIcon applicationIcon()
{
    // The desktop shows the same drawing.
    QFile drawing(u":/labelport/icons/labelport-workbench.svg"_s);
    const QByteArray svg = drawing.open(QIODevice::ReadOnly) ? drawing.readAll() : QByteArray();
    QIcon result;
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        result.addPixmap(drawn(svg, side));
    }
    return result;
}

} // namespace window
