#pragma once

#include "host/facets/i_line_item.h"
#include "host/items/contoured_item.h"

#include <QGraphicsLineItem>
#include <QObject>

/// A straight line.
class LineItem : public QObject, public QGraphicsLineItem, public ContouredItem, public ILineItem
{};
