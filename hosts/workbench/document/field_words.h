#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

/// What can be wrong with a field of a saved label, in words.
namespace workbench::document {

/// Which field is wrong, and how.
struct FieldProblem
{
    QString path;  ///< "items[3].pen.color"
    QString words; ///< "%1 is missing": a sentence about the path, without a full stop

    [[nodiscard]] QString text() const { return words.arg(path); }
};

using MaybeProblem = std::optional<FieldProblem>;

/// Kinds of field beside those of single values.
inline constexpr const char* GroupKind =
    QT_TRANSLATE_NOOP("workbench::FieldWords", "a group of fields");
inline constexpr const char* ListKind = QT_TRANSLATE_NOOP("workbench::FieldWords", "a list");

/// The problems; where the field stands is filled in by those who know.
[[nodiscard]] MaybeProblem fieldIsMissing();
/// @param kind in English, out of the translations of workbench::FieldWords
[[nodiscard]] MaybeProblem fieldIsNot(const char* kind);
[[nodiscard]] MaybeProblem fieldIsLonger(qsizetype limit);

} // namespace workbench::document
