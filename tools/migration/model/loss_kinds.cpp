#include "migration/model/loss_kinds.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace migration {

namespace {

#define WORDS(text) QT_TRANSLATE_NOOP("migration::LossKinds", text)

constexpr auto Lost = Outcome::Lost;
constexpr auto Changed = Outcome::Changed;
constexpr auto Content = Harm::Content;
constexpr auto Looks = Harm::Looks;

// clang-format off
constexpr std::array Rows{
    LossRow{LossKind::GroupedObject, "grouped-object", Lost, Content,
            WORDS("Objects in groups were left out."),
            WORDS("Open the document in its own program, ungroup the objects, save, and import again.")},
    LossRow{LossKind::FurtherPage, "further-page", Lost, Content,
            WORDS("Objects on the second and later pages were left out: a label has one page."),
            WORDS("Save each page as a document of its own and import those.")},
    LossRow{LossKind::MasterPageObject, "master-page-object", Lost, Content,
            WORDS("Objects of the page's background (its master page) were left out."),
            WORDS("Copy them from the master page to the page itself and import again.")},
    LossRow{LossKind::Connector, "connector", Lost, Content,
            WORDS("Connectors between objects were left out."),
            WORDS("Draw them as plain lines.")},
    LossRow{LossKind::FreeformShape, "freeform-shape", Lost, Content,
            WORDS("Curves, free polygons and polylines were left out."),
            WORDS("Convert them to a picture or to plain shapes.")},
    LossRow{LossKind::Callout, "callout", Lost, Content,
            WORDS("Callouts were left out."),
            WORDS("Replace each by a text and a line.")},
    LossRow{LossKind::ThreeDScene, "three-d-scene", Lost, Content,
            WORDS("Three-dimensional objects were left out."),
            WORDS("Convert them to a picture.")},
    LossRow{LossKind::FormControl, "form-control", Lost, Content,
            WORDS("Form controls were left out."),
            WORDS("Replace each by a text, if it is to be printed.")},
    LossRow{LossKind::EmbeddedObject, "embedded-object", Lost, Content,
            WORDS("Embedded objects, such as charts and formulas, were left out; an empty box is in their place."),
            WORDS("Convert them to a picture.")},
    LossRow{LossKind::NestedObject, "nested-object", Lost, Content,
            WORDS("Objects inside texts, text boxes or other objects were left out."),
            WORDS("Anchor them to the page.")},
    LossRow{LossKind::ShapeInText, "shape-in-text", Lost, Content,
            WORDS("Shapes of a text document were left out: only its texts, text boxes and pictures are taken."),
            WORDS("Put the label into a drawing instead of a text document.")},
    LossRow{LossKind::Table, "table", Lost, Content,
            WORDS("Texts and objects in tables were left out."),
            WORDS("Put them into text boxes.")},
    LossRow{LossKind::List, "list", Lost, Content,
            WORDS("Texts in lists were left out."),
            WORDS("Turn the bullets or numbers off, so that the list becomes plain paragraphs.")},
    LossRow{LossKind::TextSection, "text-section", Lost, Content,
            WORDS("Texts and objects in sections or indexes were left out."),
            WORDS("Remove the section and keep its content.")},
    LossRow{LossKind::HeaderOrFooter, "header-or-footer", Lost, Content,
            WORDS("Texts and objects of the header or footer were left out."),
            WORDS("Copy them into the document itself.")},
    LossRow{LossKind::LinkText, "link-text", Lost, Content,
            WORDS("Texts of hyperlinks were left out."),
            WORDS("Remove the hyperlinks and keep their texts.")},
    LossRow{LossKind::TextField, "text-field", Lost, Content,
            WORDS("Fields in texts, such as page numbers and names, were left out."),
            WORDS("Replace each by its text, or by a data source after the import.")},
    LossRow{LossKind::TextElement, "text-element", Lost, Content,
            WORDS("Parts of texts were left out, because their kind is not known."),
            WORDS("Compare the texts with the old label.")},
    LossRow{LossKind::ShapeText, "shape-text", Lost, Content,
            WORDS("Texts of shapes were left out: they do not begin with a plain paragraph."),
            WORDS("Turn them into plain paragraphs.")},
    LossRow{LossKind::Footnote, "footnote", Lost, Content,
            WORDS("Footnotes and endnotes were left out."),
            WORDS("Put their texts into text boxes.")},
    LossRow{LossKind::Comment, "comment", Lost, Looks,
            WORDS("Comments were left out; they are not printed."),
            WORDS("Nothing, unless somebody needs them.")},
    LossRow{LossKind::Animation, "animation", Lost, Looks,
            WORDS("Animations were left out; they are not printed."),
            WORDS("Nothing.")},
    LossRow{LossKind::UnknownObject, "unknown-object", Lost, Content,
            WORDS("Objects were left out, because their kind is not known."),
            WORDS("Compare with the old label and draw them anew.")},
    LossRow{LossKind::UnknownControl, "unknown-control", Lost, Content,
            WORDS("Objects were left out, because their kind of control is not known."),
            WORDS("Compare with the old label and draw them anew.")},
    LossRow{LossKind::FurtherControls, "further-controls", Lost, Content,
            WORDS("The file lists objects more than once; all but the first list were left out."),
            WORDS("Open the file in its own program and save it again.")},
    LossRow{LossKind::EmptyPictureBox, "empty-picture-box", Lost, Content,
            WORDS("Picture boxes without a picture were left out."),
            WORDS("If a picture is missing, put it in after the import.")},
    LossRow{LossKind::PictureUnreadable, "picture-unreadable", Lost, Content,
            WORDS("Pictures are missing: they are damaged, too large or of an unknown format."),
            WORDS("Save them as PNG and put them in after the import.")},
    LossRow{LossKind::DrawingUnreadable, "drawing-unreadable", Lost, Content,
            WORDS("Vector drawings are missing: they cannot be converted."),
            WORDS("Convert them to PNG and put them in after the import.")},
    LossRow{LossKind::SymbolUnreadable, "symbol-unreadable", Lost, Content,
            WORDS("Symbols are missing: neither the file nor the symbol databases have a drawing of them."),
            WORDS("Save the label with the newest version of its own program, which stores the drawings, or add them to the symbol databases.")},
    LossRow{LossKind::BarcodeUnsupported, "barcode-unsupported", Lost, Content,
            WORDS("Barcodes were left out, because their type is not supported."),
            WORDS("Choose another type, and put them in after the import.")},
    LossRow{LossKind::RestUnread, "rest-unread", Lost, Content,
            WORDS("Nothing was read from an unknown record on."),
            WORDS("The file is damaged or of a newer version: look for another copy.")},
    LossRow{LossKind::FileCutShort, "file-cut-short", Lost, Content,
            WORDS("The file ends in the middle: its last object is incomplete, and more may be missing."),
            WORDS("Look for another copy of the file.")},
    LossRow{LossKind::DocumentTypeUnsupported, "document-type-unsupported", Lost, Content,
            WORDS("The document is neither a text nor a drawing: nothing was taken from it."),
            WORDS("Copy its content into a drawing.")},
    LossRow{LossKind::OverLimit, "over-limit", Lost, Content,
            WORDS("Something was left out, because it is larger than anything on a real label."),
            WORDS("Make the label smaller, or its pictures.")},
    LossRow{LossKind::ObjectMissing, "object-missing", Lost, Content,
            WORDS("Objects of the file are not on the label, and the import has not said why."),
            WORDS("Compare with the old label, and tell the makers of this program.")},
    LossRow{LossKind::LogCut, "log-cut", Lost, Content,
            WORDS("The import had more to say than was kept: there may be losses that are not listed."),
            WORDS("Import this file alone and look at the label.")},
    LossRow{LossKind::UnknownShape, "unknown-shape", Changed, Content,
            WORDS("Shapes that have no counterpart became rectangles or ellipses."),
            WORDS("Choose the nearest shape after the import, or put them in as a symbol.")},
    LossRow{LossKind::DatasourceUnbound, "datasource-unbound", Changed, Content,
            WORDS("Items are no longer bound to their data source: they show what was last in them."),
            WORDS("Bind them to a data source after the import.")},
    LossRow{LossKind::DatabaseUnlinked, "database-unlinked", Changed, Content,
            WORDS("The label was linked to a database file, and is no longer."),
            WORDS("Connect the data after the import.")},
    LossRow{LossKind::PlaceholderText, "placeholder-text", Changed, Content,
            WORDS("Texts with a placeholder among other words are bound to a data source: they show its value alone."),
            WORDS("Put the other words into texts of their own, or into the data source.")},
    LossRow{LossKind::FixedField, "fixed-field", Changed, Content,
            WORDS("Fields, such as date, time and page number, became plain text: they show what they showed when the document was saved."),
            WORDS("Bind them to a data source after the import.")},
    LossRow{LossKind::BarcodeNotEncodable, "barcode-not-encodable", Changed, Content,
            WORDS("Barcodes cannot be drawn: their type does not allow their content."),
            WORDS("Correct the content or choose another type.")},
    LossRow{LossKind::BarcodeTypeAssumed, "barcode-type-assumed", Changed, Content,
            WORDS("Barcodes of a type without a known counterpart became Code 39."),
            WORDS("Scan the old label and choose the right type.")},
    LossRow{LossKind::OutsidePage, "outside-page", Changed, Content,
            WORDS("Items lie wholly outside the page: they are not printed."),
            WORDS("Move them onto the page, or delete them.")},
    LossRow{LossKind::OverPageEdge, "over-page-edge", Changed, Looks,
            WORDS("Items reach beyond the edge of the page: that part is not printed."),
            WORDS("Compare with the old label.")},
    LossRow{LossKind::SizeLimited, "size-limited", Changed, Looks,
            WORDS("Sizes, positions or fonts are larger than anything on a real label, and were limited."),
            WORDS("Compare with the old label.")},
    LossRow{LossKind::MillimetersEnlarged, "millimeters-enlarged", Changed, Looks,
            WORDS("The document measures in millimeters: the label is ten times larger than the paper."),
            WORDS("Print at a tenth of the size, or save the document with centimetres or inches as its unit.")},
    LossRow{LossKind::MixedUnits, "mixed-units", Changed, Looks,
            WORDS("Lengths are not in the unit of the page: they were read as if they were."),
            WORDS("Save the document with one unit throughout.")},
    LossRow{LossKind::UnitUnknown, "unit-unknown", Changed, Looks,
            WORDS("The page is measured in a unit that is not known: its numbers were read as inches."),
            WORDS("Save the document with centimetres or inches as its unit.")},
    LossRow{LossKind::PageSizeAssumed, "page-size-assumed", Changed, Looks,
            WORDS("The size of the page is not that of the file: it gives none, or that of another page came first."),
            WORDS("Set the size of the page after the import.")},
    LossRow{LossKind::PositionAssumed, "position-assumed", Changed, Looks,
            WORDS("Objects without a position on the page were put where the text runs, or into the corner."),
            WORDS("Anchor them to the page.")},
    LossRow{LossKind::PageMargins, "page-margins", Changed, Looks,
            WORDS("The margins of the page were dropped: the text begins in its corner."),
            WORDS("Move the texts after the import.")},
    LossRow{LossKind::PageBreak, "page-break", Changed, Looks,
            WORDS("Page breaks were dropped: all text runs down one page."),
            WORDS("Save each page as a document of its own and import those.")},
    LossRow{LossKind::TransformDropped, "transform-dropped", Changed, Looks,
            WORDS("Turned lines and slanted or scaled objects lost that."),
            WORDS("Compare with the old label.")},
    LossRow{LossKind::FontReplaced, "font-replaced", Changed, Looks,
            WORDS("Fonts that are not on this machine were replaced."),
            WORDS("Install the fonts and import again, if the looks matter.")},
    LossRow{LossKind::TextStretched, "text-stretched", Changed, Looks,
            WORDS("Stretched texts are not stretched any more."),
            WORDS("Choose a font size that fits.")},
    LossRow{LossKind::TextColor, "text-color", Changed, Looks,
            WORDS("Colored texts lost their color."),
            WORDS("Set the color after the import.")},
    LossRow{LossKind::TextSpacing, "text-spacing", Changed, Looks,
            WORDS("Line breaks, tabs or repeated spaces in texts were dropped."),
            WORDS("Split such a text into paragraphs.")},
    LossRow{LossKind::TextFormat, "text-format", Changed, Looks,
            WORDS("Formats of characters and paragraphs, such as superscript or line spacing, were dropped."),
            WORDS("Compare with the old label.")},
    LossRow{LossKind::FillSimplified, "fill-simplified", Changed, Looks,
            WORDS("Gradients, hatchings and pictures that fill objects were simplified."),
            WORDS("Choose a fill after the import.")},
    LossRow{LossKind::EffectDropped, "effect-dropped", Changed, Looks,
            WORDS("Shadows, transparency, cropping and other effects were dropped."),
            WORDS("Compare with the old label.")},
    LossRow{LossKind::Other, "other", Changed, Content,
            WORDS("The import has something to say about this label."),
            WORDS("Read it, and compare with the old label.")},
};
// clang-format on
#undef WORDS

static_assert(Rows.size() == static_cast<std::size_t>(LossKind::Other) + 1);
static_assert([] {
    for (std::size_t index = 0; index < Rows.size(); ++index) {
        if (Rows[index].kind != static_cast<LossKind>(index)) {
            return false;
        }
    }
    return true;
}());

QString translated(const char* text)
{
    return QCoreApplication::translate("migration::LossKinds", text);
}

} // namespace

std::span<const LossRow> lossRows()
{
    return Rows;
}

const LossRow& lossRow(LossKind kind)
{
    return Rows.at(static_cast<std::size_t>(kind));
}

const LossRow* lossRowOf(const QString& code)
{
    const auto* found = std::find_if(Rows.begin(), Rows.end(), [&code](const LossRow& row) {
        return code == QLatin1String(row.code);
    });
    return found != Rows.end() ? found : nullptr;
}

QString lossCode(LossKind kind)
{
    return QString::fromLatin1(lossRow(kind).code);
}

QString lossWords(LossKind kind)
{
    return translated(lossRow(kind).words);
}

QString lossAdvice(LossKind kind)
{
    return translated(lossRow(kind).advice);
}

} // namespace migration
