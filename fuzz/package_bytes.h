#pragma once

#include <QByteArray>

/// A zip package with the two members that an OpenDocument file is read from.
[[nodiscard]] QByteArray packageBytes(const QByteArray& styles, const QByteArray& content);
