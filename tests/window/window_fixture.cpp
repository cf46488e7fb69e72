#include "window_fixture.h"

#include "window/label/label_files.h"

#include <QApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

using workbench::ItemValues;

ItemValues rectangle()
{
    ItemValues values;
    values.type = KestTypes::Rectangle;
    values.box.size = QSizeF(72.0, 36.0);
    values.placement.position = QPointF(18.0, 18.0);
    values.pen = workbench::PenValues();
    values.fill = workbench::FillValues();
    values.fill->color = QColor(0xff, 0xd5, 0x80);
    return values;
}

ItemValues countedText(int source)
{
    ItemValues values;
    values.type = KestTypes::SimpleText;
    values.box.size = QSizeF(120.0, 24.0);
    values.placement.position = QPointF(108.0, 24.0);
    values.font = workbench::FontValues();
    values.font->pointSize = 14;
    values.font->sized = true;
    values.textStyle = workbench::TextStyleValues();
    values.text = workbench::TextValues{u"Own text"_s, {}};
    values.textLabel = workbench::TextLabelValues();
    values.textLabel->textBox = values.box.size;
    values.datasource = workbench::DatasourceValues{source, {}};
    return values;
}

ItemValues lockedLine()
{
    ItemValues values;
    values.type = KestTypes::Line;
    values.placement.position = QPointF(18.0, 108.0);
    values.placement.movable = false;
    values.pen = workbench::PenValues();
    values.line = workbench::LineValues{QPointF(216.0, 0.0), 0, 1};
    return values;
}

int makeCounter(workbench::datasources::DatasourceController& sources)
{
    const int id = sources.createDatasource(u"SequenceDatasource"_s);
    TalDatasource* counter = sources.getDatasource(id);
    counter->setDatasourceProperty(u"Prefix"_s, u"No. "_s);
    counter->setDatasourceProperty(u"Start"_s, 1);
    counter->setDatasourceProperty(u"End"_s, 5);
    counter->setDatasourceProperty(u"Step"_s, 1);
    return id;
}

} // namespace

window::OpenLabel makeLabel()
{
    window::OpenLabel label;
    label.canvas = std::make_unique<workbench::Canvas>();
    label.sources = std::make_unique<workbench::datasources::DatasourceController>();
    label.canvas->importCanvasParameters(252.0, 126.0, false, false);
    label.canvas->addItem(rectangle());
    label.canvas->addItem(countedText(makeCounter(*label.sources)));
    label.canvas->addItem(lockedLine());
    label.canvas->completeCanvasLoading();
    window::showRecord(label, 0);
    label.suggestedName = u"made.label"_s;
    return label;
}

void saveMadeLabel(const QString& fileName)
{
    ASSERT_EQ(window::writeLabel(makeLabel(), fileName), QString());
}

void keepPicture(QWidget& widget, const QString& name)
{
    QApplication::processEvents();
    keepImage(widget.grab().toImage(), name);
}

void keepImage(const QImage& image, const QString& name)
{
    const QDir folder(QStringLiteral(LABELPORT_PICTURES));
    ASSERT_TRUE(folder.mkpath(u"."_s));
    ASSERT_TRUE(image.save(folder.filePath(name + u".png"_s)));
}
