#pragma once

// Texts on a painted page, as importers create them.

#include "painted.h"

#include "host/items/simple_text_item.h"
#include "host/items/text_item.h"

// A rich text of 100 by 60 points at (50, 20).
inline TextItem& putRich(Painted& page, const QString& text)
{
    auto& item = page.make<TextItem>(KestTypes::RichText);
    item.setItemSize(QSizeF(100.0, 60.0));
    item.setPos(50.0, 20.0);
    item.setText(text);
    item.setFontPointSize(12);
    return item;
}

// A simple text like those of binary labels: no fixed side.
inline SimpleTextItem& putLabel(Painted& page, const QString& text, int size,
                                signed char limiting = 0, const QSizeF& box = {})
{
    auto& item = page.make<SimpleTextItem>(KestTypes::SimpleText);
    item.setItemSizeLimiting(limiting);
    item.setTextBoxSize(box);
    item.importTextProperties(text, size, false, false, false, Qt::AlignLeft);
    item.applyTextOptions();
    return item;
}
