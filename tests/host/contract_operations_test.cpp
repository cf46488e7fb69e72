// The operations of the contract with their exact arguments: every host must have them for an
// importer that was built against them.

#include "host/class_factory.h"
#include "host/datasource_controller.h"
#include "host/file_controller.h"
#include "host/items/barcode_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"
#include "host/services/basic_conversions.h"
#include "host/services/common_lists.h"
#include "host/services/file_controller_tools.h"
#include "host/services/symbol_creator.h"
#include "host/services/symbol_database_model.h"
#include "host/services/tal_message_box.h"
#include "host/services/white_space.h"
#include "host/tal_canvas_model.h"
#include "host/tal_datasource.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <type_traits>

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Operation, typename Expected>
constexpr bool is = std::is_same_v<Operation, Expected>;

using Items = QList<QGraphicsItem*>;

// The canvas and the item factory.
using Canvas = TalCanvasModel;
static_assert(is<decltype(&Canvas::getClassFactory), ClassFactory* (Canvas::*)()>);
static_assert(is<decltype(&Canvas::importItem), void (Canvas::*)(Item*)>);
static_assert(
    is<decltype(&Canvas::importCanvasParameters), void (Canvas::*)(double, double, bool, bool)>);
static_assert(is<decltype(&Canvas::setCanvasBackgroundColor), void (Canvas::*)(const QColor&)>);
static_assert(is<decltype(&Canvas::setCanvasDefaultPenColor), void (Canvas::*)(const QColor&)>);
static_assert(is<decltype(&Canvas::canvasBackgroundColor), QColor (Canvas::*)() const>);
static_assert(is<decltype(&Canvas::canvasDefaultPenColor), QColor (Canvas::*)() const>);
static_assert(is<decltype(&Canvas::setReadOnlyStateOnItemsInList), void (Canvas::*)(bool, Items)>);
static_assert(
    is<decltype(&Canvas::setUserBackgroundStateOnItemsInList), void (Canvas::*)(bool, Items)>);
static_assert(is<decltype(&Canvas::completeCanvasLoading), void (Canvas::*)()>);
static_assert(is<decltype(&ClassFactory::create), Item* (ClassFactory::*)(KestTypes::ShapeType)>);

// Operations that importers call on items.
static_assert(is<decltype(&Item::getItemWidth), double (Item::*)() const>);
static_assert(is<decltype(&Item::getItemHeight), double (Item::*)() const>);
static_assert(is<decltype(&SimpleTextItem::importTextProperties),
                 void (SimpleTextItem::*)(const QString&, int, bool, bool, bool,
                                          const QFlags<Qt::AlignmentFlag>&)>);
static_assert(
    is<decltype(&SimpleTextItem::setItemSizeLimiting), void (SimpleTextItem::*)(signed char)>);
static_assert(
    is<decltype(&BarcodeItem::importBarcodeProperties),
       void (BarcodeItem::*)(int, const QString&, bool, int, int, bool, bool, int, int, int)>);
static_assert(is<decltype(&RichTextItem::adjustBoxSizeToContent), void (RichTextItem::*)(double)>);
static_assert(is<decltype(&PixMapItem::pixmapImportActions), void (PixMapItem::*)(const QPixmap&)>);
static_assert(is<decltype(&SymbolItem::loadItemFromData), void (SymbolItem::*)(const QByteArray&)>);
static_assert(is<decltype(&PenItem::setPenWidth), void (PenItem::*)(quint16)>);

// Controllers and sources.
static_assert(is<decltype(&FileController::checkSaveChanges),
                 bool (FileController::*)(TalCanvasModel*, const QString&, bool)>);
static_assert(is<decltype(&FileController::saveImportedLabelAs),
                 void (FileController::*)(const QString&, const QString&, const QString&)>);
static_assert(
    is<decltype(&FileController::emitLabelTypeLoadedSignal), void (FileController::*)(QString)>);
static_assert(is<decltype(&DatasourceController::createDatasource),
                 int (DatasourceController::*)(const QString&)>);
static_assert(is<decltype(&DatasourceController::getDatasource),
                 TalDatasource* (DatasourceController::*)(int)>);
static_assert(is<decltype(&TalDatasource::setDatasourceProperty),
                 void (TalDatasource::*)(const QString&, const QVariant&)>);
static_assert(is<decltype(&TalDatasource::fields), QList<QString> (TalDatasource::*)() const>);
static_assert(is<decltype(&TalDatasource::setSelectedFields),
                 void (TalDatasource::*)(const QList<QString>&)>);

// Services that a program supplies when it is linked.
static_assert(is<decltype(&FileControllerTools::getDefaultImportFolder), QString (*)()>);
static_assert(std::is_constructible_v<SymbolCreator, QWidget*>);
static_assert(
    is<decltype(&SymbolCreator::loadImportedSvg), void (SymbolCreator::*)(const QByteArray&)>);
static_assert(
    is<decltype(&SymbolCreator::convertSvgToSymbol), bool (SymbolCreator::*)(const QRectF&)>);
static_assert(is<decltype(&SymbolCreator::getSymbolData), QByteArray (SymbolCreator::*)()>);
static_assert(std::is_constructible_v<SymbolDatabaseModel, QObject*>);
static_assert(is<decltype(&SymbolDatabaseModel::setDatabasePath),
                 void (SymbolDatabaseModel::*)(const QString&)>);
static_assert(is<decltype(&SymbolDatabaseModel::getDataFromSymbolName),
                 QByteArray (SymbolDatabaseModel::*)(QString)>);
static_assert(is<decltype(&CommonLists::isValidFamily), bool (*)(QString)>);
static_assert(is<decltype(&CommonLists::isValidBarcode1D), bool (*)(unsigned short)>);
static_assert(is<decltype(&CommonLists::isValidBarcode2D), bool (*)(unsigned short)>);
static_assert(is<decltype(&WhiteSpace::getWhiteSpacesSplitRegex), QRegularExpression (*)()>);
static_assert(is<decltype(&BasicConversions::almostEqual), bool (*)(double, double, double)>);
static_assert(is<decltype(&BasicConversions::normalizeAngle), double (*)(double)>);
static_assert(std::is_constructible_v<
              TalMessageBox, const QString&, const QString&, QFlags<QMessageBox::StandardButton>,
              QMessageBox::StandardButton, QString, QMap<QMessageBox::StandardButton, QString>>);
static_assert(std::is_base_of_v<QDialog, TalMessageBox>);

TEST(ContractOperations, TheMessageBoxEmitsASignalWithItsName)
{
    // Importers connect by the names of the signals.
    TalMessageBox box(u"Title"_s, u"Text\n"_s, QMessageBox::Ok, QMessageBox::Ok, QString(), {});
    const QSignalSpy spy(&box, SIGNAL(popupHideSignal()));
    ASSERT_TRUE(spy.isValid());
    Q_EMIT box.popupHideSignal();
    EXPECT_EQ(spy.count(), 1);
}

} // namespace
