// Labels in a window that is laid out from right to left.

#include "window_fixture.h"

#include "window/main_window.h"
#include "workbench/rendering/page_image.h"

#include <QApplication>

using namespace window;
using namespace Qt::Literals::StringLiterals;

namespace {

class DirectionTest : public WindowFixture, public ::testing::WithParamInterface<const char*>
{
protected:
    ~DirectionTest() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

    [[nodiscard]] QImage labelIn(Qt::LayoutDirection direction) const
    {
        QApplication::setLayoutDirection(direction);
        MainWindow window;
        window.show();
        EXPECT_EQ(window.openFileQuietly(sample(QString::fromLatin1(GetParam()))), QString());
        return workbench::renderPage(*window.session().label()->canvas, 200.0).image;
    }
};

} // namespace

TEST_P(DirectionTest, TheLabelDoesNotDependOnTheDirectionOfTheWindow)
{
    const QImage expected = labelIn(Qt::LeftToRight);
    ASSERT_FALSE(expected.isNull());
    EXPECT_EQ(labelIn(Qt::RightToLeft), expected);
}

// With formatted texts, plain texts, barcodes, tables and pictures.
INSTANTIATE_TEST_SUITE_P(Samples, DirectionTest,
                         ::testing::Values("orvanta/asset_tag.qmtx", "orvanta/parcel_label.qmtx",
                                           "opendocument/care_label.odt",
                                           "opendocument/shelf_label.odg",
                                           "tavrel/asset_tag_2000020.cnv",
                                           "tavrel/parcel_2000023.roc"));
