#pragma once

#include <QString>
#include <QtGlobal>

#include <span>

/// The kinds of losses and changes, with their codes.
namespace migration {

/// All kinds of losses and changes. Reports contain the codes, not the numbers.
enum class LossKind : quint8 {
    // Lost.
    GroupedObject,
    FurtherPage,
    PagesLeftOut,
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
    LineText,
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
    // Changed.
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
    TextEffect,
    TextPath,
    TextWrap,
    LayoutSimplified,
    Numbering,
    TextDiffers,
    TextUnreadable,
    TextsOverlap,
    Covered,
    Moved,
    Mirrored,
    Invisible,
    FillAdded,
    PenWidth,
    CellBorders,
    FillSimplified,
    PictureFill,
    ObjectRedrawn,
    EffectDropped,
    Transparency,
    Other,
};

/// Whether an object is missing on the label or was changed.
enum class Outcome : quint8 { Lost, Changed };

/// Whether the content of the label is affected, or only its looks.
enum class Impact : quint8 { Content, Appearance };

/// One kind.
struct LossRow
{
    LossKind kind;
    const char* code; ///< kebab case; stable
    Outcome outcome;
    Impact impact;
    const char* words;  ///< untranslated: what happened
    const char* advice; ///< untranslated: the command or menu that helps; null if there is none
};

/// All kinds, in the order of the enumeration: those of Outcome::Lost first.
[[nodiscard]] std::span<const LossRow> lossRows();
[[nodiscard]] const LossRow& lossRow(LossKind kind);
/// The row of a code; null for an unknown code.
[[nodiscard]] const LossRow* lossRowOf(const QString& code);

/// The stable code of reports, such as "font-replaced".
[[nodiscard]] QString lossCode(LossKind kind);
/// What happened, in the language of the program.
[[nodiscard]] QString lossText(LossKind kind);
/// What a program of LabelPort can do about it, in the language of the program; empty for nothing.
[[nodiscard]] QString lossAdvice(LossKind kind);

} // namespace migration
