#pragma once

#include <QVariant>

class QWidget;

namespace window {

// Pictures and symbols from a file of the user. The dialogs show why a file cannot be used.

/// A QImage; invalid if the user canceled or the file cannot be used.
[[nodiscard]] QVariant askPicture(QWidget* parent);

/// Symbol data as QByteArray; invalid if the user canceled or the file cannot be used.
[[nodiscard]] QVariant askSymbol(QWidget* parent);

} // namespace window
