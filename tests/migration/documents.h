#pragma once

#include "migration/file_report_builder.h"
#include "migration/model/file_report.h"
#include "workbench/import/label_import.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <functional>

using namespace Qt::Literals::StringLiterals;

/// Small documents of all formats, and the reports on them.

/// Optional parts of an OpenDocument package besides its body.
struct DocumentParts
{
    QByteArray pageLayout = "fo:page-width=\"4in\" fo:page-height=\"3in\"";
    QByteArray automaticStyles = {}; ///< of content.xml
    QByteArray commonStyles = {};    ///< of styles.xml
    QByteArray masterPages = {};
    QByteArray embeddedObject = {}; ///< the body of "Object 1"
};

/// A package with a body of any kind.
[[nodiscard]] QByteArray packageOf(const QByteArray& body, const DocumentParts& parts = {});
/// A drawing whose first page has these elements.
[[nodiscard]] QByteArray drawingOf(const QByteArray& shapes, const DocumentParts& parts = {});
/// A text document of these elements.
[[nodiscard]] QByteArray textOf(const QByteArray& elements, const DocumentParts& parts = {});
/// An XML label with these controls, on a page of 400 by 300 pixels.
[[nodiscard]] QByteArray controlsOf(const QByteArray& controls);

/// A document with the name that selects its reader.
struct Document
{
    QString name;
    QByteArray bytes;
};

[[nodiscard]] inline Document odg(const QByteArray& shapes, const DocumentParts& parts = {})
{
    return {u"drawing.odg"_s, drawingOf(shapes, parts)};
}
[[nodiscard]] inline Document odt(const QByteArray& elements, const DocumentParts& parts = {})
{
    return {u"text.odt"_s, textOf(elements, parts)};
}
[[nodiscard]] inline Document qmtx(const QByteArray& controls)
{
    return {u"label.qmtx"_s, controlsOf(controls)};
}
[[nodiscard]] inline Document cnv(const QByteArray& bytes)
{
    return {u"canvas.cnv"_s, bytes};
}

// Inline: tables of other sources begin with them, before main() starts.

/// A rectangle of an inch on the page of a drawing, which is imported completely.
inline const QByteArray PlainRect =
    "<draw:rect svg:x=\"1in\" svg:y=\"1in\" svg:width=\"1in\" svg:height=\"1in\"/>";
/// A text on the page of an XML label, which is imported completely.
inline const QByteArray PlainLabel =
    "<transparent_label><printable_control><text>Plain</text><bounds><x>220</x><y>220</y>"
    "<w>100</w><h>40</h></bounds><font><family>Liberation Sans</family><size>10</size></font>"
    "</printable_control></transparent_label>";

/// Changes the result of an import before the report.
using Tamper = std::function<void(workbench::ImportResult& result)>;

/// Imports the document through the importer and the workbench, and returns the report.
[[nodiscard]] migration::FileReport reportOn(const Document& document,
                                             const Tamper& tamper = nullptr,
                                             const migration::ReportOptions& options = {});

/// Removes one item from the label, like a reader that skips an object.
void dropItem(workbench::ImportResult& result, qsizetype index);

/// The finding with this code in either list; null if there is none.
[[nodiscard]] const migration::Finding* findingOf(const migration::FileReport& report,
                                                  const QString& code);
/// All codes of a report, for messages of tests.
[[nodiscard]] QString codesOf(const migration::FileReport& report);

/// A picture of one color as PNG.
[[nodiscard]] QByteArray pngOf(int width = 8, int height = 8);
