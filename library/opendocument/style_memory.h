#pragma once

#include "opendocument/graphic_style.h"
#include "opendocument/text_style.h"

#include <QMap>
#include <QString>

namespace opendocument {

/// About the bytes that styles take with their names. Texts that styles share count for each.
[[nodiscard]] qint64 memoryOf(const QMap<QString, OOTextStyle>& styles);
[[nodiscard]] qint64 memoryOf(const QMap<QString, OOGraphicStyle>& styles);

} // namespace opendocument
