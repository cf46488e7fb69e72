#pragma once

#include <QString>
#include <QtGlobal>

#include <span>

/// What can happen to a label on its way, kind by kind.
namespace migration {

/// Every kind of loss and change. The numbers are of no meaning; reports carry the codes.
enum class LossKind : quint8 {
    // What stays behind.
    GroupedObject,
    FurtherPage,
    MasterPageObject,
    Connector,
    FreeformShape,
    Callout,
    ThreeDScene,
    FormControl,
    EmbeddedObject,
    NestedObject,
    ShapeInText,
    Table,
    List,
    TextSection,
    HeaderOrFooter,
    LinkText,
    TextField,
    TextElement,
    ShapeText,
    Footnote,
    Comment,
    Animation,
    UnknownObject,
    UnknownControl,
    FurtherControls,
    EmptyPictureBox,
    PictureUnreadable,
    DrawingUnreadable,
    SymbolUnreadable,
    BarcodeUnsupported,
    RestUnread,
    FileCutShort,
    DocumentTypeUnsupported,
    OverLimit,
    ObjectMissing,
    LogCut,
    // What comes over in another form.
    UnknownShape,
    DatasourceUnbound,
    DatabaseUnlinked,
    PlaceholderText,
    FixedField,
    BarcodeNotEncodable,
    BarcodeTypeAssumed,
    OutsidePage,
    OverPageEdge,
    SizeLimited,
    MillimetersEnlarged,
    MixedUnits,
    UnitUnknown,
    PageSizeAssumed,
    PositionAssumed,
    PageMargins,
    PageBreak,
    TransformDropped,
    FontReplaced,
    TextStretched,
    TextColor,
    TextSpacing,
    TextFormat,
    FillSimplified,
    EffectDropped,
    Other,
};

/// Whether an object stays behind or comes over in another form.
enum class Outcome : quint8 { Lost, Changed };

/// Whether what the label says is harmed, or only its looks.
enum class Harm : quint8 { Content, Looks };

/// What is known of one kind.
struct LossRow
{
    LossKind kind;
    const char* code; ///< in kebab case; never changes
    Outcome outcome;
    Harm harm;
    const char* words;  ///< to be translated; one or many of it
    const char* advice; ///< to be translated; what a person can do about it
};

/// All kinds, in the order of the enumeration: those of Outcome::Lost first.
[[nodiscard]] std::span<const LossRow> lossRows();
[[nodiscard]] const LossRow& lossRow(LossKind kind);
/// The row of a code; null for a code that is not known.
[[nodiscard]] const LossRow* lossRowOf(const QString& code);

[[nodiscard]] QString lossCode(LossKind kind);
/// What happened, in the language of the program.
[[nodiscard]] QString lossWords(LossKind kind);
/// What can be done about it, in the language of the program.
[[nodiscard]] QString lossAdvice(LossKind kind);

} // namespace migration
