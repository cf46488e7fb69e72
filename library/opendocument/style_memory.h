#pragma once

#include "opendocument/graphic_style.h"
#include "opendocument/text_style.h"

#include <QMap>
#include <QString>

namespace opendocument {

/// Approximate bytes of styles and their names. Texts shared by styles count for each style.
[[nodiscard]] qint64 memoryOf(const QMap<QString, OOTextStyle>& styles);
[[nodiscard]] qint64 memoryOf(const QMap<QString, OOGraphicStyle>& styles);

} // namespace opendocument
