#pragma once

#include "documents.h"
#include "opendocument/open_office_reader.h"
#include "tests/support/test_host/test_host.h"

#include <QGraphicsItem>

#include <gtest/gtest.h>

/// A reader and its host. Items start at 20 by 10 points. A rich text is 12 points high and ten
/// wide per character, up to the width of its box; a symbol is 7 by 8.
class ReaderTest : public testing::Test
{
protected:
    using Types = QList<KestTypes::ShapeType>;

    ReaderTest()
    {
        host.behavior().itemSize = {20, 10};
        host.behavior().characterWidth = 10;
        host.behavior().symbolSize = QSizeF(7, 8);
    }

    bool import(const QByteArray& styles, const QByteArray& content)
    {
        Package package(styles, content);
        return reader.importLabelFromFile(package.write());
    }

    /// The calls of an import between the first, for the page, and the last, which completes it.
    [[nodiscard]] QStringList itemCalls() const
    {
        const QStringList all = host.calls();
        return all.sliced(1, all.size() - 2);
    }
    [[nodiscard]] QString html(int item) const
    {
        const auto* text = dynamic_cast<const QGraphicsTextItem*>(host.item(item));
        return text != nullptr ? text->toHtml() : QString();
    }

    TestHost host;
    OpenOfficeReader reader{host.canvas(), nullptr};
};
