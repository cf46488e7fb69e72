#include "apps/workbench/item_description.h"

#include "apps/workbench/style_names.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTextDocumentFragment>

namespace desktop {

namespace {

using workbench::ItemValues;

constexpr int kSummaryLength = 60;
// A property shows the beginning of a text; nobody reads a megabyte in a table.
constexpr int kLongestValue = 2000;

QString tr(const char* text)
{
    return QCoreApplication::translate("desktop::ItemDescription", text);
}

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
    return tr("%1 × %2 pixels").arg(size.width()).arg(size.height());
}

// Collects rows under one group at a time.
class Rows
{
public:
    void begin(const QString& group) { m_group = group; }
    void add(const QString& name, const QString& value)
    {
        m_rows.append({m_group, name, shortened(value, kLongestValue)});
    }
    void add(const QString& name, bool value) { add(name, value ? tr("yes") : tr("no")); }
    void add(const QString& name, int value) { add(name, QLocale().toString(value)); }
    void add(const QString& name, const QColor& value) { add(name, colorName(value)); }
    [[nodiscard]] QList<PropertyRow> rows() const { return m_rows; }

private:
    QString m_group;
    QList<PropertyRow> m_rows;
};

void addPlace(Rows& rows, const ItemValues& values, LengthUnit unit)
{
    rows.begin(tr("Place"));
    rows.add(tr("Kind"), kindName(values.type));
    rows.add(tr("Left"), lengthText(values.placement.position.x(), unit));
    rows.add(tr("Top"), lengthText(values.placement.position.y(), unit));
    rows.add(tr("Width"), lengthText(values.box.size.width(), unit));
    rows.add(tr("Height"), lengthText(values.box.size.height(), unit));
    rows.add(tr("Angle"), angleText(values.box.rotation));
    rows.add(tr("Flipped left to right"), values.box.flipHorizontal);
    rows.add(tr("Flipped top to bottom"), values.box.flipVertical);
    rows.add(tr("Layer"), QLocale().toString(values.placement.z));
    rows.add(tr("Movable"), values.placement.movable);
    rows.add(tr("Read-only"), values.placement.readOnly);
    rows.add(tr("Background"), values.placement.userBackground);
}

void addPen(Rows& rows, const workbench::PenValues& pen)
{
    rows.begin(tr("Line"));
    rows.add(tr("Line color"), pen.color);
    rows.add(tr("Line width"), pen.width == 0 ? tr("thinnest") : tr("%1 pt").arg(pen.width));
    rows.add(tr("Line style"), penStyleName(pen.style));
    rows.add(tr("Line ends"), capStyleName(pen.cap));
    rows.add(tr("Line corners"), joinStyleName(pen.join));
}

void addFill(Rows& rows, const workbench::FillValues& fill)
{
    rows.begin(tr("Fill"));
    rows.add(tr("Filled"), fill.filled);
    rows.add(tr("Fill color"), fill.color);
    rows.add(tr("Fill pattern"), brushStyleName(fill.style));
}

void addCorner(Rows& rows, const workbench::CornerValues& corner, LengthUnit unit)
{
    rows.begin(tr("Corners"));
    rows.add(tr("Corner radius"),
             corner.radius ? lengthText(*corner.radius, unit) : tr("a sixth of the shorter side"));
}

void addLine(Rows& rows, const workbench::LineValues& line, LengthUnit unit)
{
    rows.begin(tr("Ends"));
    rows.add(tr("End, to the right"), lengthText(line.end.x(), unit));
    rows.add(tr("End, down"), lengthText(line.end.y(), unit));
    rows.add(tr("Mark at the start"), lineMarkerName(line.startMarker));
    rows.add(tr("Mark at the end"), lineMarkerName(line.endMarker));
}

void addText(Rows& rows, const workbench::TextValues& text)
{
    rows.begin(tr("Text"));
    rows.add(tr("Text"), plainText(text));
}

void addTextStyle(Rows& rows, const workbench::TextStyleValues& style)
{
    rows.begin(tr("Text"));
    rows.add(tr("Text color"), style.color);
    rows.add(tr("Alignment"), alignmentName(style.alignment));
}

void addTextLabel(Rows& rows, const workbench::TextLabelValues& label, LengthUnit unit)
{
    rows.begin(tr("Text"));
    rows.add(tr("Text box"), areaText(label.textBox.width(), label.textBox.height(), unit));
    rows.add(tr("Fixed sides"), fixedSidesName(label.limiting));
}

void addFont(Rows& rows, const workbench::FontValues& font)
{
    rows.begin(tr("Font"));
    rows.add(tr("Font family"), font.family.isEmpty() ? tr("the default") : font.family);
    rows.add(tr("Font size"), font.sized ? tr("%1 pt").arg(font.pointSize) : tr("not set"));
    rows.add(tr("Bold"), font.bold);
    rows.add(tr("Italic"), font.italic);
    rows.add(tr("Underlined"), font.underline);
}

void addBarcode(Rows& rows, const workbench::BarcodeValues& barcode)
{
    rows.begin(tr("Barcode"));
    rows.add(tr("Symbology"), barcode.symbology);
    rows.add(tr("Content"), barcode.content);
    rows.add(tr("Module width"),
             barcode.moduleWidth == 0 ? tr("automatic") : tr("%1 pt").arg(barcode.moduleWidth));
    rows.add(tr("Bars"), barcode.foreground);
    rows.add(tr("Ground"), barcode.background);
    rows.add(tr("Option"), barcode.option);
}

void addPicture(Rows& rows, const workbench::PictureValues& picture)
{
    rows.begin(tr("Picture"));
    rows.add(tr("Picture size"),
             picture.image.isNull() ? tr("no picture") : pixelText(picture.image.size()));
}

void addSymbol(Rows& rows, const workbench::SymbolValues& symbol)
{
    rows.begin(tr("Symbol"));
    rows.add(tr("Drawing"),
             symbol.data.isEmpty() ? tr("none") : QLocale().formattedDataSize(symbol.data.size()));
    rows.add(tr("Symbol color"), symbol.foreground);
    rows.add(tr("Symbol ground"), symbol.background);
}

void addDatasource(Rows& rows, const workbench::DatasourceValues& source)
{
    rows.begin(tr("Data source"));
    rows.add(tr("Source"), source.id < 0 ? tr("none") : tr("number %1").arg(source.id));
    if (!source.fields.isEmpty()) {
        rows.add(tr("Fields"), source.fields.join(QStringLiteral(", ")));
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
        content = tr("data source %1").arg(values.datasource->id);
    }
    return shortened(content.left(kSummaryLength * 4).simplified(), kSummaryLength);
}

QString itemTitle(const ItemValues& values)
{
    const QString summary = contentSummary(values);
    const QString kind = kindName(values.type);
    return summary.isEmpty() ? kind : tr("%1 “%2”").arg(kind, summary);
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

} // namespace desktop
