#pragma once

#include <QByteArray>
#include <QList>

namespace xmlbounds {

/// The texts, as UTF-8, that a parser may see in the bytes of an XML document: the bytes
/// themselves, what their first bytes tell (UTF-16, UTF-32), and what their declaration
/// names. A bound that holds in all of them holds in the one that the parser chooses.
///
/// Costs nothing for the usual document, whose only reading shares its bytes.
[[nodiscard]] QList<QByteArray> readingsOf(const QByteArray& bytes);

} // namespace xmlbounds
