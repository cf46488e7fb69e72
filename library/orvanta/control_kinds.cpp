#include "orvanta/control_kinds.h"

#include "orvanta/picture_content.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

using namespace Qt::StringLiterals;

namespace orvanta {

namespace {

// Children that several kinds of objects have.

// `printable_control`. A second one replaces the first, except flips and rotation, which are
// separate children of the object.
template <typename Record>
void takePrintableControl(const Element& child, FamilyCheck isKnownFamily, Record& record)
{
    ControlProperties properties = readControlProperties(child, isKnownFamily);
    properties.rotation = record.properties.rotation;
    properties.flipHorizontal = record.properties.flipHorizontal;
    properties.flipVertical = record.properties.flipVertical;
    record.properties = properties;
}

// `flip_horizontally`
template <typename Record>
void takeFlipHorizontal(const Element& child, FamilyCheck /*unused*/, Record& record)
{
    record.properties.flipHorizontal = readFlag(child);
}

// `flip_vertically`
template <typename Record>
void takeFlipVertical(const Element& child, FamilyCheck /*unused*/, Record& record)
{
    record.properties.flipVertical = readFlag(child);
}

// `rotation`, in whole degrees
template <typename Record>
void takeRotation(const Element& child, FamilyCheck /*unused*/, Record& record)
{
    record.properties.rotation = readInteger(child);
}

void takeTexts(const Element& child, FamilyCheck /*unused*/, BarcodeControl& control)
{
    control.texts = readTexts(child);
}

void takeBarcodeType(const Element& child, FamilyCheck /*unused*/, BarcodeControl& control)
{
    control.hostType = hostBarcodeCode(readInteger(child));
}

constexpr Field<BarcodeControl> BarcodeFields[] = {
    {"printable_control"_L1, takePrintableControl<BarcodeControl>},
    {"ArrayOfString"_L1, takeTexts},
    {"barcode_type"_L1, takeBarcodeType},
};

void takeEntries(const Element& child, FamilyCheck /*unused*/, ListControl& control)
{
    control.entries = readTexts(child);
}

constexpr Field<ListControl> ListFields[] = {
    {"printable_control"_L1, takePrintableControl<ListControl>},
    {"ArrayOfAnyType"_L1, takeEntries},
};

struct FormatRow
{
    int code;
    std::size_t date; ///< index in DateFormats
    std::size_t time; ///< index in TimeFormats
};

constexpr FormatRow FormatRows[] = {
    {1, 2, 0}, // a date
    {2, 4, 0}, // a date with a short year
    {4, 0, 3}, // a time
};

// For all other codes: date and time.
constexpr FormatRow OtherFormat = {0, 2, 3};

void takeFormat(const Element& child, FamilyCheck /*unused*/, DateTimeControl& control)
{
    control.formats = dateTimeFormats(readInteger(child));
}

constexpr Field<DateTimeControl> DateTimeFields[] = {
    {"printable_control"_L1, takePrintableControl<DateTimeControl>},
    {"format"_L1, takeFormat},
};

void takeReadOnly(const Element& child, FamilyCheck /*unused*/, NumericControl& control)
{
    control.readOnly = readFlag(child);
}

void takeMinimum(const Element& child, FamilyCheck /*unused*/, NumericControl& control)
{
    control.minimum = readInteger(child);
}

void takeMaximum(const Element& child, FamilyCheck /*unused*/, NumericControl& control)
{
    control.maximum = readInteger(child);
}

void takeIncrement(const Element& child, FamilyCheck /*unused*/, NumericControl& control)
{
    control.increment = readInteger(child);
}

// The misspelled "incrememnt" is the name in the files, and "increment" is ignored. Old labels
// depend on it.
constexpr Field<NumericControl> NumericFields[] = {
    {"printable_control"_L1, takePrintableControl<NumericControl>},
    {"read_only"_L1, takeReadOnly},
    {"minimum"_L1, takeMinimum},
    {"maximum"_L1, takeMaximum},
    {"incrememnt"_L1, takeIncrement},
};

void takeImage(const Element& child, FamilyCheck /*unused*/, PictureControl& control)
{
    control.bytes = readPictureContent(child);
}

constexpr Field<PictureControl> PictureFields[] = {
    {"printable_control"_L1, takePrintableControl<PictureControl>},
    {"flip_horizontally"_L1, takeFlipHorizontal<PictureControl>},
    {"flip_vertically"_L1, takeFlipVertical<PictureControl>},
    {"rotation"_L1, takeRotation<PictureControl>},
    {"image"_L1, takeImage},
};

constexpr int LeftCode = 0;
constexpr int RightCode = 2;

void takeItems(const Element& child, FamilyCheck /*unused*/, TextControl& control)
{
    control.items = readTexts(child);
}

void takeScaleable(const Element& child, FamilyCheck /*unused*/, TextControl& control)
{
    control.scaleable = readFlag(child);
}

void takeAlignment(const Element& child, FamilyCheck /*unused*/, TextControl& control)
{
    control.alignment = alignmentFromCode(readInteger(child));
}

constexpr Field<TextControl> TextFields[] = {
    {"printable_control"_L1, takePrintableControl<TextControl>},
    {"items"_L1, takeItems},
    {"scaleable"_L1, takeScaleable},
    {"flip_horizontally"_L1, takeFlipHorizontal<TextControl>},
    {"flip_vertically"_L1, takeFlipVertical<TextControl>},
    {"rotation"_L1, takeRotation<TextControl>},
    {"alignment"_L1, takeAlignment},
};

void takeShapeIndex(const Element& child, FamilyCheck /*unused*/, ShapeControl& control)
{
    control.shapeIndex = readInteger(child);
}

void takeLineWidth(const Element& child, FamilyCheck /*unused*/, ShapeControl& control)
{
    control.lineWidth = readInteger(child);
}

void takeSides(const Element& child, FamilyCheck /*unused*/, ShapeControl& control)
{
    control.sides = readInteger(child);
}

constexpr Field<ShapeControl> ShapeFields[] = {
    {"printable_control"_L1, takePrintableControl<ShapeControl>},
    {"flip_horizontally"_L1, takeFlipHorizontal<ShapeControl>},
    {"flip_vertically"_L1, takeFlipVertical<ShapeControl>},
    {"rotation"_L1, takeRotation<ShapeControl>},
    {"shape_index"_L1, takeShapeIndex},
    {"line_width"_L1, takeLineWidth},
    {"sides"_L1, takeSides},
};

} // namespace

BarcodeControl readBarcodeControl(const Element& element, FamilyCheck isKnownFamily)
{
    BarcodeControl control;
    readFields(element, BarcodeFields, isKnownFamily, control);
    return control;
}

ListControl readListControl(const Element& element, FamilyCheck isKnownFamily)
{
    ListControl control;
    readFields(element, ListFields, isKnownFamily, control);
    return control;
}

DateTimeControl readDateTimeControl(const Element& element, FamilyCheck isKnownFamily)
{
    DateTimeControl control;
    readFields(element, DateTimeFields, isKnownFamily, control);
    return control;
}

QStringList dateTimeFormats(int code)
{
    const auto* known = std::find_if(std::begin(FormatRows), std::end(FormatRows),
                                     [code](const FormatRow& row) { return row.code == code; });
    const FormatRow& row = known == std::end(FormatRows) ? OtherFormat : *known;
    return {DateFormats.at(row.date), TimeFormats.at(row.time)};
}

NumericControl readNumericControl(const Element& element, FamilyCheck isKnownFamily)
{
    NumericControl control;
    readFields(element, NumericFields, isKnownFamily, control);
    return control;
}

PictureControl readPictureControl(const Element& element, FamilyCheck isKnownFamily)
{
    PictureControl control;
    readFields(element, PictureFields, isKnownFamily, control);
    return control;
}

TextControl readTextControl(const Element& element, FamilyCheck isKnownFamily)
{
    TextControl control;
    readFields(element, TextFields, isKnownFamily, control);
    return control;
}

Qt::Alignment alignmentFromCode(int code)
{
    switch (code) {
    case LeftCode:
        return Qt::AlignLeft;
    case RightCode:
        return Qt::AlignRight;
    default:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    }
}

ShapeControl readShapeControl(const Element& element, FamilyCheck isKnownFamily)
{
    ShapeControl control;
    readFields(element, ShapeFields, isKnownFamily, control);
    return control;
}

} // namespace orvanta
