#include "exporting/targets.h"

#include "printing/print_document.h"
#include "printing/sheet_presets.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace exporting {
namespace {

constexpr std::array PictureOptions{
    TargetOption{DpiOption.data(),
                 OptionKind::Number,
                 QT_TRANSLATE_NOOP("exporting::Targets", "Re&solution"),
                 QT_TRANSLATE_NOOP("exporting::Targets", "resolution in dots per inch"),
                 QT_TRANSLATE_NOOP("exporting::Targets", "dpi"),
                 10,
                 2400,
                 {},
                 300}};

constexpr TargetOption Copies{CopiesOption.data(),
                              OptionKind::Number,
                              QT_TRANSLATE_NOOP("exporting::Targets", "&Copies"),
                              QT_TRANSLATE_NOOP("exporting::Targets", "copies of each record"),
                              "",
                              1,
                              printing::MaximumCopies,
                              {},
                              1};

constexpr TargetOption Sheets{
    .name = SheetOption.data(),
    .kind = OptionKind::Name,
    .label = QT_TRANSLATE_NOOP("exporting::Targets", "&Sheet"),
    .description = QT_TRANSLATE_NOOP("exporting::Targets", "sheet of labels, or paper"),
    .names = &printing::sheetNames};

constexpr std::array GlabelsOptions{Sheets};

constexpr std::array DocumentOptions{
    Sheets,
    TargetOption{FirstPositionOption.data(),
                 OptionKind::Number,
                 QT_TRANSLATE_NOOP("exporting::Targets", "First &label"),
                 QT_TRANSLATE_NOOP("exporting::Targets", "first free label of the first sheet"),
                 "",
                 1,
                 printing::MaximumGrid* printing::MaximumGrid,
                 {},
                 1},
    Copies,
    TargetOption{.name = CropMarksOption.data(),
                 .label = QT_TRANSLATE_NOOP("exporting::Targets", "C&rop marks"),
                 .description = QT_TRANSLATE_NOOP("exporting::Targets",
                                                  "marks on sheets that show where to cut")}};

constexpr std::array PrinterResolutions{203, 300, 600};

constexpr std::array PrinterOptions{
    TargetOption{DpiOption.data(), OptionKind::Choice,
                 QT_TRANSLATE_NOOP("exporting::Targets", "&Printer resolution"),
                 QT_TRANSLATE_NOOP("exporting::Targets", "resolution of the label printer"),
                 QT_TRANSLATE_NOOP("exporting::Targets", "dpi"), 0, 0, PrinterResolutions, 300},
    Copies,
    TargetOption{.name = ZplNativeOption.data(),
                 .label = QT_TRANSLATE_NOOP("exporting::Targets",
                                            "&Barcodes, lines and counters by the printer"),
                 .description = QT_TRANSLATE_NOOP(
                     "exporting::Targets",
                     "let the printer draw barcodes and lines, and advance counters")}};

constexpr std::array Targets{
    TargetEntry{Target::Png, "png", QT_TRANSLATE_NOOP("exporting::Targets", "PNG picture"),
                QT_TRANSLATE_NOOP("exporting::Targets", "PNG pictures"),
                QT_TRANSLATE_NOOP("exporting::Targets", "picture"), RecordFiles::FileForEach,
                PictureOptions},
    TargetEntry{Target::Svg,
                "svg",
                QT_TRANSLATE_NOOP("exporting::Targets", "SVG drawing"),
                QT_TRANSLATE_NOOP("exporting::Targets", "SVG drawings"),
                QT_TRANSLATE_NOOP("exporting::Targets", "vector drawing"),
                RecordFiles::FileForEach,
                {}},
    TargetEntry{Target::Pdf, "pdf", QT_TRANSLATE_NOOP("exporting::Targets", "PDF document"),
                QT_TRANSLATE_NOOP("exporting::Targets", "PDF documents"),
                QT_TRANSLATE_NOOP("exporting::Targets", "document, a page for each record"),
                RecordFiles::OneFile, DocumentOptions},
    TargetEntry{Target::Zpl, "zpl",
                QT_TRANSLATE_NOOP("exporting::Targets", "ZPL for label printers"),
                QT_TRANSLATE_NOOP("exporting::Targets", "Printer files"),
                QT_TRANSLATE_NOOP("exporting::Targets",
                                  "commands for a label printer, a label for each record"),
                RecordFiles::OneFile, PrinterOptions},
    TargetEntry{Target::Csv,
                "csv",
                QT_TRANSLATE_NOOP("exporting::Targets", "CSV table of records"),
                QT_TRANSLATE_NOOP("exporting::Targets", "CSV tables"),
                QT_TRANSLATE_NOOP("exporting::Targets",
                                  "table of what bound items show, a line for each record"),
                RecordFiles::OneFile,
                {}},
    TargetEntry{Target::Label,
                "label",
                QT_TRANSLATE_NOOP("exporting::Targets", "LabelPort label"),
                QT_TRANSLATE_NOOP("exporting::Targets", "LabelPort labels"),
                QT_TRANSLATE_NOOP("exporting::Targets", "saved label, to open and edit again"),
                RecordFiles::Always,
                {}},
    TargetEntry{Target::Glabels, "glabels",
                QT_TRANSLATE_NOOP("exporting::Targets", "gLabels label"),
                QT_TRANSLATE_NOOP("exporting::Targets", "gLabels labels"),
                QT_TRANSLATE_NOOP("exporting::Targets",
                                  "label for gLabels, with its records in a CSV file"),
                RecordFiles::Always, GlabelsOptions},
};

} // namespace

bool TargetOption::accepts(int value) const
{
    switch (kind) {
    case OptionKind::Number:
        return value >= minimum && value <= maximum;
    case OptionKind::Choice:
        return std::find(choices.begin(), choices.end(), value) != choices.end();
    case OptionKind::Switch:
        return value == 0 || value == 1;
    case OptionKind::Name:
        break;
    }
    return false;
}

std::span<const TargetEntry> targets()
{
    return Targets;
}

const TargetEntry& entryOf(Target target)
{
    for (const TargetEntry& entry : Targets) {
        if (entry.target == target) {
            return entry;
        }
    }
    Q_UNREACHABLE();
}

const TargetOption* findOption(Target target, QLatin1String name)
{
    for (const TargetOption& option : entryOf(target).options) {
        if (QLatin1String(option.name) == name) {
            return &option;
        }
    }
    return nullptr;
}

QString nameOf(Target target)
{
    return QLatin1String(entryOf(target).name);
}

std::optional<Target> targetOfName(const QString& name)
{
    for (const TargetEntry& entry : Targets) {
        if (name == QLatin1String(entry.name)) {
            return entry.target;
        }
    }
    return std::nullopt;
}

QStringList targetNames()
{
    QStringList names;
    for (const TargetEntry& entry : Targets) {
        names.append(QLatin1String(entry.name));
    }
    return names;
}

QString translated(const char* text)
{
    return QCoreApplication::translate("exporting::Targets", text);
}

QString recordsFileOf(Target target, const QString& fileName)
{
    return target == Target::Glabels ? fileName + QLatin1String(".csv") : QString();
}

QStringList recordsSuffixes(const QStringList& targetNames)
{
    QStringList suffixes;
    for (const TargetEntry& entry : Targets) {
        const QString table = recordsFileOf(entry.target, QLatin1String(entry.name));
        if (!table.isEmpty() && targetNames.contains(QLatin1String(entry.name))) {
            suffixes.append(table);
        }
    }
    return suffixes;
}

int valueOf(const OptionValues& values, Target target, QLatin1String name)
{
    const TargetOption* option = findOption(target, name);
    const int initial = option != nullptr ? option->initial : 0;
    const QJsonValue value = values.value(name);
    return value.isBool() ? static_cast<int>(value.toBool()) : value.toInt(initial);
}

} // namespace exporting
