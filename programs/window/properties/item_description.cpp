#include "window/properties/item_description.h"

#include "window/properties/style_names.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTextDocumentFragment>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

using workbench::ItemValues;

constexpr int SummaryLength = 60;
// A property shows only the beginning of a text: a cell must stay short.
constexpr int LongestValue = 2000;

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(window::ItemDescription)
};

QString shortened(const QString& text, int length)
{
    return text.size() <= length ? text : text.left(length - 1) + QChar(0x2026);
}

QString plainText(const workbench::TextValues& text)
{
    return text.html.isEmpty() ? text.text
                               : QTextDocumentFragment::fromHtml(text.html).toPlainText();
}

QString pixelText(const QSize& size)
{
    return Words::tr("%1 × %2 pixels").arg(size.width()).arg(size.height());
}

// Collects rows under one group at a time.
class Rows
{
public:
    void begin(const QString& group) { m_group = group; }
    void add(const QString& name, const QString& value)
    {
        m_rows.append({m_group, name, shortened(value, LongestValue)});
    }
    void add(const QString& name, bool value)
    {
        add(name, value ? Words::tr("yes") : Words::tr("no"));
    }
    void add(const QString& name, int value) { add(name, QLocale().toString(value)); }
    void add(const QString& name, const QColor& value) { add(name, colorName(value)); }
    [[nodiscard]] QList<PropertyRow> rows() const { return m_rows; }

private:
    QString m_group;
    QList<PropertyRow> m_rows;
};

void addPlace(Rows& rows, const ItemValues& values, LengthUnit unit)
{
    rows.begin(Words::tr("Place"));
    rows.add(Words::tr("Kind"), kindName(values.type));
    rows.add(Words::tr("Left"), lengthText(values.placement.position.x(), unit));
    rows.add(Words::tr("Top"), lengthText(values.placement.position.y(), unit));
    rows.add(Words::tr("Width"), lengthText(values.box.size.width(), unit));
    rows.add(Words::tr("Height"), lengthText(values.box.size.height(), unit));
    rows.add(Words::tr("Angle"), angleText(values.box.rotation));
    rows.add(Words::tr("Flipped left to right"), values.box.flipHorizontal);
    rows.add(Words::tr("Flipped top to bottom"), values.box.flipVertical);
    rows.add(Words::tr("Layer"), QLocale().toString(values.placement.z));
    rows.add(Words::tr("Movable"), values.placement.movable);
    rows.add(Words::tr("Read-only"), values.placement.readOnly);
    rows.add(Words::tr("Background"), values.placement.userBackground);
}

void addPen(Rows& rows, const workbench::PenValues& pen)
{
    rows.begin(Words::tr("Line"));
    rows.add(Words::tr("Line color"), pen.color);
    rows.add(Words::tr("Line width"),
             pen.width == 0 ? Words::tr("thinnest") : Words::tr("%1 pt").arg(pen.width));
    rows.add(Words::tr("Line style"), penStyleName(pen.style));
    rows.add(Words::tr("Line ends"), capStyleName(pen.cap));
    rows.add(Words::tr("Line corners"), joinStyleName(pen.join));
}

void addFill(Rows& rows, const workbench::FillValues& fill)
{
    rows.begin(Words::tr("Fill"));
    rows.add(Words::tr("Filled"), fill.filled);
    rows.add(Words::tr("Fill color"), fill.color);
    rows.add(Words::tr("Fill pattern"), brushStyleName(fill.style));
}

void addCorner(Rows& rows, const workbench::CornerValues& corner, LengthUnit unit)
{
    rows.begin(Words::tr("Corners"));
    rows.add(Words::tr("Corner radius"), corner.radius ? lengthText(*corner.radius, unit)
                                                       : Words::tr("a sixth of the shorter side"));
}

void addLine(Rows& rows, const workbench::LineValues& line, LengthUnit unit)
{
    rows.begin(Words::tr("Ends"));
    rows.add(Words::tr("End, to the right"), lengthText(line.end.x(), unit));
    rows.add(Words::tr("End, down"), lengthText(line.end.y(), unit));
    rows.add(Words::tr("Mark at the start"), lineMarkerName(line.startMarker));
    rows.add(Words::tr("Mark at the end"), lineMarkerName(line.endMarker));
}

void addText(Rows& rows, const workbench::TextValues& text)
{
    rows.begin(Words::tr("Text"));
    rows.add(Words::tr("Text"), plainText(text));
}

void addTextStyle(Rows& rows, const workbench::TextStyleValues& style)
{
    rows.begin(Words::tr("Text"));
    rows.add(Words::tr("Text color"), style.color);
    rows.add(Words::tr("Alignment"), alignmentName(style.alignment));
}

void addTextLabel(Rows& rows, const workbench::TextLabelValues& label, LengthUnit unit)
{
    rows.begin(Words::tr("Text"));
    rows.add(Words::tr("Text box"), areaText(label.textBox.width(), label.textBox.height(), unit));
    rows.add(Words::tr("Fixed sides"), fixedSidesName(label.limiting));
}

void addFont(Rows& rows, const workbench::FontValues& font)
{
    rows.begin(Words::tr("Font"));
    rows.add(Words::tr("Font family"),
             font.family.isEmpty() ? Words::tr("the default") : font.family);
    rows.add(Words::tr("Font size"),
             font.sized ? Words::tr("%1 pt").arg(font.pointSize) : Words::tr("not set"));
    rows.add(Words::tr("Bold"), font.bold);
    rows.add(Words::tr("Italic"), font.italic);
    rows.add(Words::tr("Underlined"), font.underline);
}

void addBarcode(Rows& rows, const workbench::BarcodeValues& barcode)
{
    rows.begin(Words::tr("Barcode"));
    rows.add(Words::tr("Symbology"), barcode.symbology);
    rows.add(Words::tr("Content"), barcode.content);
    rows.add(Words::tr("Module width"), barcode.moduleWidth == 0
                                            ? Words::tr("automatic")
                                            : Words::tr("%1 pt").arg(barcode.moduleWidth));
    rows.add(Words::tr("Bars"), barcode.foreground);
    rows.add(Words::tr("Ground"), barcode.background);
    rows.add(Words::tr("Option"), barcode.option);
}

void addPicture(Rows& rows, const workbench::PictureValues& picture)
{
    rows.begin(Words::tr("Picture"));
    rows.add(Words::tr("Picture size"),
             picture.image.isNull() ? Words::tr("no picture") : pixelText(picture.image.size()));
}

void addSymbol(Rows& rows, const workbench::SymbolValues& symbol)
{
    rows.begin(Words::tr("Symbol"));
    rows.add(Words::tr("Drawing"), symbol.data.isEmpty()
                                       ? Words::tr("none")
                                       : QLocale().formattedDataSize(symbol.data.size()));
    rows.add(Words::tr("Symbol color"), symbol.foreground);
    rows.add(Words::tr("Symbol ground"), symbol.background);
}

void addDatasource(Rows& rows, const workbench::DatasourceValues& source)
{
    rows.begin(Words::tr("Data source"));
    rows.add(Words::tr("Source"),
             source.id < 0 ? Words::tr("none") : Words::tr("number %1").arg(source.id));
    if (!source.fields.isEmpty()) {
        rows.add(Words::tr("Fields"), source.fields.join(u", "_s));
    }
}

void addTextGroups(Rows& rows, const ItemValues& values, LengthUnit unit)
{
    if (values.text) {
        addText(rows, *values.text);
    }
    if (values.textStyle) {
        addTextStyle(rows, *values.textStyle);
    }
    if (values.textLabel) {
        addTextLabel(rows, *values.textLabel, unit);
    }
    if (values.font) {
        addFont(rows, *values.font);
    }
}

void addShapeGroups(Rows& rows, const ItemValues& values, LengthUnit unit)
{
    if (values.pen) {
        addPen(rows, *values.pen);
    }
    if (values.fill) {
        addFill(rows, *values.fill);
    }
    if (values.corner) {
        addCorner(rows, *values.corner, unit);
    }
    if (values.line) {
        addLine(rows, *values.line, unit);
    }
}

void addContentGroups(Rows& rows, const ItemValues& values)
{
    if (values.barcode) {
        addBarcode(rows, *values.barcode);
    }
    if (values.picture) {
        addPicture(rows, *values.picture);
    }
    if (values.symbol) {
        addSymbol(rows, *values.symbol);
    }
    if (values.datasource) {
        addDatasource(rows, *values.datasource);
    }
}

} // namespace

QString contentSummary(const ItemValues& values)
{
    QString content;
    if (values.text) {
        content = plainText(*values.text);
    } else if (values.barcode) {
        content = values.barcode->content;
    } else if (values.picture && !values.picture->image.isNull()) {
        content = pixelText(values.picture->image.size());
    }
    if (content.isEmpty() && values.datasource && values.datasource->id >= 0) {
        content = Words::tr("data source %1").arg(values.datasource->id);
    }
    return shortened(content.left(SummaryLength * 4).simplified(), SummaryLength);
}

QString itemTitle(const ItemValues& values)
{
    const QString summary = contentSummary(values);
    const QString kind = kindName(values.type);
    return summary.isEmpty() ? kind : Words::tr("%1 “%2”").arg(kind, summary);
}

QList<PropertyRow> describeItem(const ItemValues& values, LengthUnit unit)
{
    Rows rows;
    addPlace(rows, values, unit);
    addTextGroups(rows, values, unit);
    addContentGroups(rows, values);
    addShapeGroups(rows, values, unit);
    return rows.rows();
}

} // namespace window
