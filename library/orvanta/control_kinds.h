#pragma once

#include "orvanta/barcode_codes.h"
#include "orvanta/control_properties.h"

#include <QByteArray>
#include <QStringList>

#include <array>

/// The kinds of objects of an XML label and their own properties.
namespace orvanta {

/// A barcode. The format stores no flips and no rotation for it; these keep their defaults.
struct BarcodeControl
{
    ControlProperties properties;
    QStringList texts;                 ///< contents to step through; may be empty
    int hostType = DefaultBarcodeCode; ///< the host's symbology code
};

/// A list box: `combo_box`. The format stores no flips, rotation or alignment for it.
struct ListControl
{
    ControlProperties properties;
    QStringList entries;
};

/// The current date or time: `date_time_picker`.
struct DateTimeControl
{
    ControlProperties properties;
    QStringList formats; ///< date format, time format; empty without a `format` element
};

/// A counter: `numeric_up_down`.
struct NumericControl
{
    ControlProperties properties;
    bool readOnly = false;
    int minimum = 0;
    int maximum = 0;
    int increment = 1;
};

/// A picture: `picture_box`.
struct PictureControl
{
    ControlProperties properties;
    QByteArray bytes; ///< the picture file; empty without one
};

/// A text: `swap_text_box` or `transparent_label`.
struct TextControl
{
    ControlProperties properties;
    QStringList items;      ///< texts to step through; empty for a fixed text
    bool scaleable = false; ///< the text fills its box, whatever its font size
    Qt::Alignment alignment = Qt::AlignHCenter | Qt::AlignVCenter;
};

/// A shape: `transparent_shape` or `transparent_polygon`.
struct ShapeControl
{
    ControlProperties properties;
    int shapeIndex = 0;
    int lineWidth = 0; ///< as stored; the host's pen takes the low 16 bits
    int sides = 0;
};

/// Each reads one kind of control. Missing child elements keep the defaults of the structure.
[[nodiscard]] BarcodeControl readBarcodeControl(const Element& element, FamilyCheck isKnownFamily);
[[nodiscard]] ListControl readListControl(const Element& element, FamilyCheck isKnownFamily);
[[nodiscard]] DateTimeControl readDateTimeControl(const Element& element,
                                                  FamilyCheck isKnownFamily);
[[nodiscard]] NumericControl readNumericControl(const Element& element, FamilyCheck isKnownFamily);
[[nodiscard]] PictureControl readPictureControl(const Element& element, FamilyCheck isKnownFamily);
[[nodiscard]] TextControl readTextControl(const Element& element, FamilyCheck isKnownFamily);
[[nodiscard]] ShapeControl readShapeControl(const Element& element, FamilyCheck isKnownFamily);

/// The alignment of a stored code. Old labels depend on left and right having no vertical part.
[[nodiscard]] Qt::Alignment alignmentFromCode(int code);

/// Date formats of the source, by its own index.
inline constexpr std::array<QLatin1String, 10> DateFormats = {
    ""_L1,           "yyyy-MM-dd"_L1, "MM-dd-yyyy"_L1,  "MM/dd/yyyy"_L1,   "MM/dd/yy"_L1,
    "dd-MM-yyyy"_L1, "dd/MM/yyyy"_L1, "dd MMM yyyy"_L1, "MMMM d, yyyy"_L1, "dddd, MMMM d, yyyy"_L1,
};

/// Time formats of the source, by its own index. The tenth is two formats without a separator; old
/// labels depend on it and on the number of formats.
inline constexpr std::array<QLatin1String, 16> TimeFormats = {
    ""_L1,        "hh:mm:ss AP"_L1,      "h:mm:ss ap"_L1, "HH:mm:ss"_L1,
    "H:mm:ss"_L1, "hh:mm ap"_L1,         "h:mm AP"_L1,    "HH:mm"_L1,
    "H:mm"_L1,    "mm:sshh:mm:ss ap"_L1, "h:m:s ap"_L1,   "hh:mm:ss"_L1,
    "h:m:s"_L1,   "h:m ap"_L1,           "hh:mm"_L1,      "h:m"_L1,
};

/// Date format and time format of a stored format code; one of them may be empty.
[[nodiscard]] QStringList dateTimeFormats(int code);

} // namespace orvanta
