// The objects of an OpenDocument package: those of its body, and those of its styles' master
// page, behind the page.

#include "limits/zip/zip_directory.h"
#include "migration/census/counting.h"
#include "migration/census/open_document_geometry.h"
#include "migration/census/open_document_names.h"
#include "migration/census/open_document_styles.h"
#include "migration/census/open_document_styles_reader.h"
#include "migration/census/open_document_walker.h"
#include "migration/census/xml_gate.h"

#include <QCoreApplication>
#include <QHash>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <functional>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array KnownUnits{"in"_L1, "cm"_L1, "mm"_L1, "pc"_L1};

// Names in attributes, turned as those of elements are.
QXmlStreamAttributes renamed(const QXmlStreamAttributes& attributes, const NameTable& names)
{
    QXmlStreamAttributes result;
    for (const QXmlStreamAttribute& attribute : attributes) {
        result.append(names.nameOf(attribute.qualifiedName()), attribute.value().toString());
    }
    return result;
}

/// Callbacks for the parts of a document.
struct Listener
{
    std::function<void(const QString& name, const QXmlStreamAttributes& attributes)> open;
    std::function<void(QStringView characters)> text;
    std::function<void()> divide;
    std::function<void()> close;
};

// Empty, or why the document ended early.
QString read(const QByteArray& xml, const Census& census, const Listener& listener)
{
    NameTable names;
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd() && census.objects.size() <= MaximumObjects) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            names.learn(reader.attributes());
            listener.open(names.nameOf(reader.qualifiedName()),
                          renamed(reader.attributes(), names));
            break;
        case QXmlStreamReader::Characters:
            listener.text(reader.text());
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            listener.divide();
            break;
        case QXmlStreamReader::EndElement:
            listener.close();
            break;
        default:
            break;
        }
    }
    return reader.hasError() ? notWellFormed(reader.errorString()) : QString();
}

QString readStyles(const QByteArray& xml, Styles& styles)
{
    StylesReader reader(styles);
    return read(
        xml, Census(),
        {.open = [&](const QString& name,
                     const QXmlStreamAttributes& attributes) { reader.open(name, attributes); },
         .text = [&](QStringView characters) { reader.text(characters); },
         .divide = [] {},
         .close = [&] { reader.close(); }});
}

QString unitOf(const Styles& styles)
{
    return styles.layouts.isEmpty() ? QString() : styles.layouts.first().width.right(2);
}

/// Properties of the complete document in its body.
struct Body
{
    QString masterPage;
    bool isText = false;
};

QString readContent(const QByteArray& xml, Styles& styles, Census& census, Body& body)
{
    OpenDocumentWalker walker(census, styles.book, unitOf(styles));
    const QString error =
        read(xml, census,
             {.open =
                  [&](const QString& name, const QXmlStreamAttributes& attributes) {
                      styles.book.take(name, attributes);
                      walker.open(name, attributes);
                  },
              .text = [&](QStringView characters) { walker.text(characters); },
              .divide = [&] { walker.divide(); },
              .close = [&] { walker.close(); }});
    body = {walker.masterPage(), walker.hasRunningText()};
    return error;
}

// Texts begin with the master page of this name, unless their first paragraph names another.
const MasterPage* usedMasterPage(const Styles& styles, const QString& name)
{
    const QString wanted = name.isEmpty() ? u"Standard"_s : name;
    for (const MasterPage& page : styles.masterPages) {
        if (page.name == wanted) {
            return &page;
        }
    }
    return styles.masterPages.isEmpty() ? nullptr : &styles.masterPages.first();
}

void addMasterPage(const MasterPage& page, Census& census)
{
    const qsizetype first = census.appearances.size();
    for (CountedObject object : page.census.objects) {
        object.appearance += object.appearance < 0 ? 0 : first;
        census.objects.append(object);
    }
    census.appearances.append(page.census.appearances);
    for (const auto& [kind, tally] : page.census.tallies) {
        census.note(kind, tally.count);
        for (const QString& detail : tally.details) {
            census.detail(kind, detail);
        }
    }
}

// In points; nothing if a length is missing.
QSizeF sizeOf(const PageLayout& layout)
{
    return {lengthInPoints(layout.width).value_or(0.0),
            lengthInPoints(layout.height).value_or(0.0)};
}

// The page is the first that the styles describe, which need not be the one that is used.
void notePageSize(const Styles& styles, const MasterPage* used, Census& census)
{
    const PageLayout first = styles.layouts.value(0);
    if (first.width.isEmpty() || first.isSizeAssumed) {
        return census.note(LossKind::PageSizeAssumed);
    }
    const QString unit = first.width.right(2);
    if (unit == "mm"_L1) {
        census.note(LossKind::MillimetersEnlarged);
    } else if (std::find(KnownUnits.begin(), KnownUnits.end(), unit) == KnownUnits.end()) {
        census.note(LossKind::UnitUnknown, 1, unit);
    }
    for (const PageLayout& layout : styles.layouts) {
        const bool isUsed = used != nullptr && layout.name == used->layout;
        if (isUsed && (layout.width != first.width || layout.height != first.height)) {
            census.note(LossKind::PageSizeAssumed, 1, layout.width + u" × "_s + layout.height);
        }
    }
}

PageLayout layoutOf(const Styles& styles, const MasterPage* used)
{
    const auto found = std::find_if(styles.layouts.begin(), styles.layouts.end(),
                                    [used](const PageLayout& layout) {
                                        return used != nullptr && layout.name == used->layout;
                                    });
    return found != styles.layouts.end() ? *found : PageLayout();
}

QString missing(const char* name)
{
    return QCoreApplication::translate("migration::Census", "The package has no readable part %1.")
        .arg(QString::fromLatin1(name));
}

} // namespace

Census countOpenDocument(const QByteArray& file)
{
    Census census;
    ziplimits::ZipDirectory package;
    // A damaged package has no members.
    (void)package.openBytes(file);
    const auto stylesXml = package.read(u"styles.xml"_s, MaximumStyles);
    const auto contentXml = package.read(u"content.xml"_s, MaximumContent);
    if (!stylesXml || !contentXml) {
        census.unknown = missing(!stylesXml ? "styles.xml" : "content.xml");
        return census;
    }
    for (const QByteArray& xml : {*stylesXml, *contentXml}) {
        census.unknown = census.unknown.isEmpty() ? uncountableReason(xml) : census.unknown;
    }
    if (!census.unknown.isEmpty()) {
        return census;
    }
    Styles styles;
    Body body;
    census.unknown = readStyles(*stylesXml, styles);
    const QString error = readContent(*contentXml, styles, census, body);
    census.unknown = census.unknown.isEmpty() ? error : census.unknown;
    const MasterPage* used = usedMasterPage(styles, body.masterPage);
    if (used != nullptr) {
        addMasterPage(*used, census);
    }
    refuseTooMany(census);
    census.pageSize = sizeOf(styles.layouts.value(0));
    notePageSize(styles, used, census);
    if (body.isText && styles.book.numbersLines()) {
        census.note(LossKind::TextEffect, 1, u"text:linenumbering-configuration"_s);
    }
    const PageLayout layout = layoutOf(styles, used);
    if (body.isText && layout.hasMargins) {
        census.note(LossKind::PageMargins);
    }
    if (body.isText && layout.hasShadow) {
        census.note(LossKind::EffectDropped, 1, u"style:shadow"_s);
    }
    if (body.isText && layout.hasColumns) {
        census.note(LossKind::LayoutSimplified, 1, u"style:columns"_s);
    }
    return census;
}

} // namespace migration
