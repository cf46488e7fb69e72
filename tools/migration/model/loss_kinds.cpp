#include "migration/model/loss_kinds.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace migration {

namespace {

#define TEXT(text) QT_TRANSLATE_NOOP("migration::LossKinds", text)

constexpr auto Lost = Outcome::Lost;
constexpr auto Changed = Outcome::Changed;
constexpr auto Content = Impact::Content;
constexpr auto Appearance = Impact::Appearance;

// clang-format off
constexpr std::array Rows{
    LossRow{LossKind::GroupedObject, "grouped-object", Lost, Content,
            TEXT("Objects in groups were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::FurtherPage, "further-page", Lost, Content,
            TEXT("Objects on the second and later pages were left out: a label has one page."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::PagesLeftOut, "pages-left-out", Lost, Content,
            TEXT("Pages were left out, because the document has too many or they cannot be imported."), nullptr},
    LossRow{LossKind::MasterPageObject, "master-page-object", Lost, Content,
            TEXT("Objects of the page's background (its master page) were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::Connector, "connector", Lost, Content,
            TEXT("Connectors between objects were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::FreeformShape, "freeform-shape", Lost, Content,
            TEXT("Curves, free polygons and polylines were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::Callout, "callout", Lost, Content,
            TEXT("Callouts were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::ThreeDScene, "three-d-scene", Lost, Content,
            TEXT("Three-dimensional objects were left out."), nullptr},
    LossRow{LossKind::FormControl, "form-control", Lost, Content,
            TEXT("Form controls were left out."), nullptr},
    LossRow{LossKind::EmbeddedObject, "embedded-object", Lost, Content,
            TEXT("Embedded objects, such as charts and formulas, were left out; an empty box is in their place."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::NestedObject, "nested-object", Lost, Content,
            TEXT("Objects inside texts, text boxes or other objects were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::ShapeInText, "shape-in-text", Lost, Content,
            TEXT("Shapes of a text document were left out: only texts, text boxes and pictures are imported."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::Table, "table", Lost, Content,
            TEXT("Texts and objects in tables were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::List, "list", Lost, Content,
            TEXT("Texts in lists were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::TextSection, "text-section", Lost, Content,
            TEXT("Texts and objects in sections or indexes were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::HeaderOrFooter, "header-or-footer", Lost, Content,
            TEXT("Texts and objects of the header or footer were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::LinkText, "link-text", Lost, Content,
            TEXT("Texts of hyperlinks were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::TextField, "text-field", Lost, Content,
            TEXT("Fields in texts, such as page numbers and names, were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::TextElement, "text-element", Lost, Content,
            TEXT("Parts of texts were left out because their type is unknown."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::ShapeText, "shape-text", Lost, Content,
            TEXT("Texts of shapes were left out because they do not begin with a plain paragraph."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::LineText, "line-text", Lost, Content,
            TEXT("Texts of lines and dimension lines were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::Footnote, "footnote", Lost, Content,
            TEXT("Footnotes and endnotes were left out."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::Comment, "comment", Lost, Appearance,
            TEXT("Comments were left out; they are not printed."), nullptr},
    LossRow{LossKind::Animation, "animation", Lost, Appearance,
            TEXT("Animations were left out; they are not printed."), nullptr},
    LossRow{LossKind::UnknownObject, "unknown-object", Lost, Content,
            TEXT("Objects were left out because their type is unknown."), nullptr},
    LossRow{LossKind::UnknownControl, "unknown-control", Lost, Content,
            TEXT("Controls were left out because their type is unknown."), nullptr},
    LossRow{LossKind::FurtherControls, "further-controls", Lost, Content,
            TEXT("The file has several lists of objects; all but the first were left out."), nullptr},
    LossRow{LossKind::EmptyPictureBox, "empty-picture-box", Lost, Content,
            TEXT("Picture boxes without a picture were left out."), nullptr},
    LossRow{LossKind::PictureUnreadable, "picture-unreadable", Lost, Content,
            TEXT("Pictures were left out because they are damaged, too large or of an unsupported format."), nullptr},
    LossRow{LossKind::DrawingUnreadable, "drawing-unreadable", Lost, Content,
            TEXT("Vector drawings were left out because they cannot be converted."), nullptr},
    LossRow{LossKind::SymbolUnreadable, "symbol-unreadable", Lost, Content,
            TEXT("Symbols were left out because neither the file nor the symbol databases contain their drawings."),
            TEXT("Add the symbols to the symbol databases and import again.")},
    LossRow{LossKind::BarcodeUnsupported, "barcode-unsupported", Lost, Content,
            TEXT("Barcodes were left out because their type is not supported."), nullptr},
    LossRow{LossKind::RestUnread, "rest-unread", Lost, Content,
            TEXT("The file continues with an unknown record; the rest was not read."), nullptr},
    LossRow{LossKind::FileCutShort, "file-cut-short", Lost, Content,
            TEXT("The file is truncated: its last object is incomplete, and more may be missing."), nullptr},
    LossRow{LossKind::DocumentTypeUnsupported, "document-type-unsupported", Lost, Content,
            TEXT("The document is neither a text nor a drawing; nothing was imported."), nullptr},
    LossRow{LossKind::OverLimit, "over-limit", Lost, Content,
            TEXT("Content was left out because it exceeds the limits for labels."), nullptr},
    LossRow{LossKind::ObjectMissing, "object-missing", Lost, Content,
            TEXT("Objects of the file are missing on the label, without a reported reason."), nullptr},
    LossRow{LossKind::LogCut, "log-cut", Lost, Content,
            TEXT("The log was cut, or the label is too large to compare: there may be losses that are not listed."), nullptr},
    LossRow{LossKind::UnknownShape, "unknown-shape", Changed, Content,
            TEXT("Unsupported shapes became rectangles or ellipses."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::DatasourceUnbound, "datasource-unbound", Changed, Content,
            TEXT("Items are no longer bound to their data source: they show their last value."),
            TEXT("Bind the items to a data source in labelport-workbench.")},
    LossRow{LossKind::DatabaseUnlinked, "database-unlinked", Changed, Content,
            TEXT("The label is no longer linked to its database file."), nullptr},
    LossRow{LossKind::PlaceholderText, "placeholder-text", Changed, Content,
            TEXT("Texts with a placeholder among other words show only the value of the data source."), nullptr},
    LossRow{LossKind::FixedField, "fixed-field", Changed, Content,
            TEXT("Fields, such as date, time and page number, became plain text with the value that they had when the document was saved."),
            TEXT("Bind the items to a data source in labelport-workbench.")},
    LossRow{LossKind::BarcodeNotEncodable, "barcode-not-encodable", Changed, Content,
            TEXT("Barcodes cannot be drawn because their content is invalid for their type."),
            TEXT("Correct the content or the type in labelport-workbench under Properties.")},
    LossRow{LossKind::BarcodeTypeAssumed, "barcode-type-assumed", Changed, Content,
            TEXT("Barcodes of a type without a known counterpart became Code 39."),
            TEXT("Choose the type in labelport-workbench under Properties.")},
    LossRow{LossKind::OutsidePage, "outside-page", Changed, Content,
            TEXT("Items are completely outside the page: they are not printed."),
            TEXT("Move the items onto the page in labelport-workbench.")},
    LossRow{LossKind::OverPageEdge, "over-page-edge", Changed, Appearance,
            TEXT("Items extend beyond the edge of the page: that part is not printed."),
            TEXT("Move the items onto the page in labelport-workbench.")},
    LossRow{LossKind::SizeLimited, "size-limited", Changed, Appearance,
            TEXT("Sizes, positions or fonts exceed the limits for labels and were reduced."), nullptr},
    LossRow{LossKind::MillimetersEnlarged, "millimeters-enlarged", Changed, Content,
            TEXT("The document uses millimeters: the label is a hundred times larger than the paper. Fonts and lines did not grow with it, so that texts are hardly visible."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::MixedUnits, "mixed-units", Changed, Appearance,
            TEXT("Lengths are not in the unit of the page, but were read as if they were."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::UnitUnknown, "unit-unknown", Changed, Content,
            TEXT("The unit of the page is not supported: its lengths were read as inches, so that points become 72 times too large. Fonts and lines did not grow with them, so that texts are hardly visible."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::PageSizeAssumed, "page-size-assumed", Changed, Appearance,
            TEXT("The size of the page was assumed: the file defines none, or several."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::PositionAssumed, "position-assumed", Changed, Appearance,
            TEXT("Objects without a position on the page were placed in the text flow or in the corner."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::PageMargins, "page-margins", Changed, Appearance,
            TEXT("The margins of the page were dropped: the text begins in the corner."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::PageBreak, "page-break", Changed, Appearance,
            TEXT("Page breaks were dropped: all text is on one page."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::TransformDropped, "transform-dropped", Changed, Appearance,
            TEXT("Rotation of lines, and skewing and scaling of objects, were dropped."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::FontReplaced, "font-replaced", Changed, Appearance,
            TEXT("Fonts that are not installed were replaced."),
            TEXT("Install the fonts and import again, or choose another font in labelport-workbench under Properties.")},
    LossRow{LossKind::TextStretched, "text-stretched", Changed, Appearance,
            TEXT("Stretched texts are no longer stretched."),
            TEXT("Set the font size in labelport-workbench under Properties.")},
    LossRow{LossKind::TextColor, "text-color", Changed, Appearance,
            TEXT("Colored texts lost their color."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::TextSpacing, "text-spacing", Changed, Appearance,
            TEXT("Line breaks, tabs or repeated spaces in texts were dropped."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::TextFormat, "text-format", Changed, Appearance,
            TEXT("Formats of characters and paragraphs, such as superscript or line spacing, were dropped."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::TextEffect, "text-effect", Changed, Appearance,
            TEXT("Looks of texts were dropped, such as shadow, outline, borders, rotation, kinds of underlines, drop caps, tab stops, fixed line heights, numbers of lines, picture bullets, marks of changes, pictures below texts and grounds of sections."), nullptr},
    LossRow{LossKind::TextPath, "text-path", Changed, Appearance,
            TEXT("Texts along a curve became straight."), nullptr},
    LossRow{LossKind::TextWrap, "text-wrap", Changed, Appearance,
            TEXT("Lines beside objects break elsewhere than in the document; objects there may have moved."), nullptr},
    LossRow{LossKind::LayoutSimplified, "layout-simplified", Changed, Appearance,
            TEXT("Columns, linked text boxes, endnotes, and tables in headers, footers and cells follow each other in one column."), nullptr},
    LossRow{LossKind::Numbering, "numbering", Changed, Content,
            TEXT("Numbers of headings were left out."),
            TEXT("Add the numbers in labelport-workbench under Properties.")},
    LossRow{LossKind::TextDiffers, "text-differs", Changed, Content,
            TEXT("Texts differ from the document: words run together, or line breaks or words are missing."),
            TEXT("If the document was imported as written, import it without --as-written. Or correct the text in labelport-workbench under Properties.")},
    LossRow{LossKind::TextUnreadable, "text-unreadable", Changed, Content,
            TEXT("Texts can hardly be read: their color is too similar to what is under them."),
            TEXT("If the document was imported as written, import it without --as-written. Or set the color in labelport-workbench under Properties.")},
    LossRow{LossKind::TextsOverlap, "texts-overlap", Changed, Content,
            TEXT("Texts are printed over each other."),
            TEXT("If the document was imported as written, import it without --as-written. Or move the texts in labelport-workbench.")},
    LossRow{LossKind::Covered, "covered", Changed, Content,
            TEXT("Items are covered by others, which they are not in the document."),
            TEXT("If the document was imported as written, import it without --as-written. Or move the items in labelport-workbench.")},
    LossRow{LossKind::Moved, "moved", Changed, Content,
            TEXT("Items have another place or size than in the document, by more than 1 mm."),
            TEXT("If the document was imported as written, import it without --as-written. Or move the items in labelport-workbench.")},
    LossRow{LossKind::Mirrored, "mirrored", Changed, Content,
            TEXT("Mirrored shapes are no longer mirrored."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::Invisible, "invisible", Changed, Content,
            TEXT("Items cannot be seen, because they have the color of what is under them."),
            TEXT("Choose another fill in labelport-workbench under Properties.")},
    LossRow{LossKind::FillAdded, "fill-added", Changed, Appearance,
            TEXT("Boxes are filled that are not filled in the document."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::PenWidth, "pen-width", Changed, Appearance,
            TEXT("Lines are more than a quarter thinner or thicker than in the document."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::CellBorders, "cell-borders", Changed, Appearance,
            TEXT("Borders of cells have other lines than in the document, or are missing in tables within tables."), nullptr},
    LossRow{LossKind::FillSimplified, "fill-simplified", Changed, Appearance,
            TEXT("Fills of objects, such as gradients and hatchings, were simplified or dropped."), nullptr},
    LossRow{LossKind::PictureFill, "picture-fill", Changed, Appearance,
            TEXT("Pictures and patterns that fill objects were replaced by a color."), nullptr},
    LossRow{LossKind::ObjectRedrawn, "object-redrawn", Changed, Appearance,
            TEXT("Embedded documents and charts were drawn again from their content: sizes, fonts and details may differ."), nullptr},
    LossRow{LossKind::EffectDropped, "effect-dropped", Changed, Appearance,
            TEXT("Shadows, transparency of pictures, cropping, borders that differ by side and other effects were dropped."), nullptr},
    LossRow{LossKind::Transparency, "transparency", Changed, Appearance,
            TEXT("Transparent fills and lines became opaque."),
            TEXT("If the document was imported as written, import it without --as-written.")},
    LossRow{LossKind::Other, "other", Changed, Content,
            TEXT("The import reported a problem with this label."), nullptr},
};
// clang-format on
#undef TEXT

static_assert(Rows.size() == static_cast<std::size_t>(LossKind::Other) + 1);
static_assert([] {
    for (std::size_t index = 0; index < Rows.size(); ++index) {
        if (Rows[index].kind != static_cast<LossKind>(index)) {
            return false;
        }
    }
    return true;
}());

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

QString lossText(LossKind kind)
{
    return QCoreApplication::translate("migration::LossKinds", lossRow(kind).words);
}

QString lossAdvice(LossKind kind)
{
    const char* const advice = lossRow(kind).advice;
    return advice != nullptr ? QCoreApplication::translate("migration::LossKinds", advice)
                             : QString();
}

} // namespace migration
