// The same for the rooms that link Qt Widgets.

#include "core.h"

#include <QColor>
#include <QFont>
#include <QGraphicsItem>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
