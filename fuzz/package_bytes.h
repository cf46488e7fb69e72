#pragma once

#include <QByteArray>

/// A zip package with the two members that the OpenDocument reader requires.
[[nodiscard]] QByteArray packageBytes(const QByteArray& styles, const QByteArray& content);
