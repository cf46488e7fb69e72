#pragma once

#include <QByteArray>
#include <QStringList>

namespace exporting {

/// What a printer adds to a text from label to label, as parameters of ^SF: "%%ddd,5". Empty if the
/// texts are not a counter of a fixed number of digits between constant texts.
[[nodiscard]] QByteArray serialization(const QStringList& texts);

} // namespace exporting
