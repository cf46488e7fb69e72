// The window's icon is the one that desktops show for the program; check boxes are visible.

#include "window/actions/icons.h"
#include "window/actions/palettes.h"

#include <QCheckBox>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>
#include <QSvgRenderer>

#include <gtest/gtest.h>

namespace {

constexpr int Side = 64;

QImage drawn(const QString& fileName)
{
    QSvgRenderer renderer(fileName);
    EXPECT_TRUE(renderer.isValid()) << qPrintable(fileName);
    QImage image(Side, Side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

TEST(ApplicationIcon, IsTheInstalledDrawing)
{
    const QImage icon = window::applicationIcon().pixmap(Side).toImage();
    ASSERT_EQ(icon.size(), QSize(Side, Side));
    EXPECT_EQ(icon.convertToFormat(QImage::Format_ARGB32_Premultiplied),
              drawn(QStringLiteral(LABELPORT_ICON)));
}

TEST(ApplicationIcon, ShowsSomething)
{
    const QImage icon = window::applicationIcon().pixmap(Side).toImage();
    EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(icon.pixelColor(Side - 12, Side / 2).rgb(), QColor(0x20, 0x21, 0x24).rgb());
}

TEST(ProgramStyle, UncheckedBoxesAreVisibleInDarkColors)
{
    window::ProgramStyle style;
    QCheckBox box;
    box.setStyle(&style);
    box.setPalette(window::darkPalette());
    box.resize(60, 24);
    QStyleOptionButton option;
    option.initFrom(&box);
    const QRect frame = style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
    const QColor edge = box.grab().toImage().pixelColor(frame.left(), frame.center().y());
    EXPECT_GT(edge.lightness(), 100);
}

} // namespace
