#pragma once

#include <QByteArray>

#include <optional>

namespace migration {

/// Unpacks one member of a zip package. No more memory is taken than the member has, however
/// much its headers claim.
///
/// @param largest bytes that are accepted, unpacked
/// @return nothing when the package has no such member, or it is damaged or too large
[[nodiscard]] std::optional<QByteArray> zipMember(const QByteArray& package, const QByteArray& name,
                                                  qint64 largest);

} // namespace migration
