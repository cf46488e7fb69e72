#pragma once

#include "tavrel/item_building.h"

#include <QByteArray>

namespace tavrel {

/// @param data the symbol in the host's form
BuildResult buildSymbol(const HostCanvas& host, const ItemHeader& header,
                        const Resolution& resolution, const QByteArray& data);

} // namespace tavrel
