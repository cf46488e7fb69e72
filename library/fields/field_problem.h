#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace fields {

/// Why a field could not be read.
struct FieldProblem
{
    QString path;  ///< "items[3].pen.color"
    QString words; ///< "%1 is missing": about the path, without a full stop

    [[nodiscard]] QString text() const { return words.arg(path); }
};

/// Empty on success.
using MaybeProblem = std::optional<FieldProblem>;

/// Kinds of fields that are not single values.
inline constexpr const char* GroupKind =
    QT_TRANSLATE_NOOP("fields::FieldProblem", "a group of fields");
inline constexpr const char* ListKind = QT_TRANSLATE_NOOP("fields::FieldProblem", "a list");

/// The problems, with an empty path; the callers prepend its parts.
[[nodiscard]] MaybeProblem fieldIsMissing();
/// @param kind in English, one of the translations of fields::FieldProblem
[[nodiscard]] MaybeProblem fieldIsNot(const char* kind);
[[nodiscard]] MaybeProblem fieldIsLonger(qsizetype limit);

} // namespace fields
