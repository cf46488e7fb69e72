#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>
#include <span>

/// The formats that labels are exported to.
namespace exporting {

/// A format to write.
enum class Target : quint8 {
    Png,     ///< a picture
    Svg,     ///< a vector drawing
    Pdf,     ///< a document with one page for each record
    Zpl,     ///< commands for a label printer
    Csv,     ///< what bound items show, record by record
    Label,   ///< the workbench's own format, for editing
    Glabels, ///< a label for gLabels, with its records in a CSV file
};

/// How the files of a target contain the records of a label.
enum class RecordFiles : quint8 {
    FileForEach, ///< a file for each selected record
    OneFile,     ///< all selected records in one file
    Always,      ///< all records in one file, whatever is selected
};

/// The type of an option's value.
enum class OptionKind : quint8 {
    Number, ///< an integer from minimum to maximum
    Choice, ///< one of the choices
    Switch, ///< true or false
    Name,   ///< one of names(), or empty
};

/// A setting of a target: an option of the command line, and a field of the export dialog.
struct TargetOption
{
    const char* name; ///< as on the command line, without "--"
    OptionKind kind = OptionKind::Switch;
    const char* label = "";       ///< in a dialog; translated by translated()
    const char* description = ""; ///< translated by translated()
    const char* unit = "";        ///< of the number; translated by translated()
    int minimum = 0;
    int maximum = 0;
    std::span<const int> choices = {};
    int initial = 0; ///< the default; of a switch, 0 or 1
    QStringList (*names)() = nullptr;

    /// Whether a number, choice or switch may have this value.
    [[nodiscard]] bool accepts(int value) const;
};

/// All that the programs offer and describe of a target.
struct TargetEntry
{
    Target target;
    const char* name;        ///< also the suffix of its files
    const char* title;       ///< "PNG picture"; translated by translated()
    const char* files;       ///< "PNG pictures"; translated by translated()
    const char* description; ///< translated by translated()
    RecordFiles records;
    std::span<const TargetOption> options;
};

/// All targets, in the order in which help and dialogs list them.
[[nodiscard]] std::span<const TargetEntry> targets();
[[nodiscard]] const TargetEntry& entryOf(Target target);
/// The option of a target; null if the target has none of this name.
[[nodiscard]] const TargetOption* findOption(Target target, QLatin1String name);

/// The short name of a target, which is also the suffix of its files.
[[nodiscard]] QString nameOf(Target target);
[[nodiscard]] std::optional<Target> targetOfName(const QString& name);
/// All short names, in the order in which help lists them.
[[nodiscard]] QStringList targetNames();

/// A text of the table in the language of the user.
[[nodiscard]] QString translated(const char* text);

/// The table of records that is written next to a file of a target, if its label has any:
/// "asset.glabels.csv". Empty if the target has no such table.
[[nodiscard]] QString recordsFileOf(Target target, const QString& fileName);

/// The suffixes of these tables, without the first dot: "glabels.csv".
[[nodiscard]] QStringList recordsSuffixes(const QStringList& targetNames);

/// The values of options, by name: integers, true for a switch, a text for a name.
using OptionValues = QJsonObject;

/// The value of an option of a target, or its default; a switch is 0 or 1.
[[nodiscard]] int valueOf(const OptionValues& values, Target target, QLatin1String name);

/// Names of the options in OptionValues, as on the command line without "--".
inline constexpr QLatin1String DpiOption("dpi");
inline constexpr QLatin1String SheetOption("sheet");
inline constexpr QLatin1String FirstPositionOption("first-position");
inline constexpr QLatin1String CopiesOption("copies");
inline constexpr QLatin1String CropMarksOption("crop-marks");
inline constexpr QLatin1String ZplNativeOption("zpl-native");

} // namespace exporting
