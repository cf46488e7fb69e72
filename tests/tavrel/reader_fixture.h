#pragma once

#include "host/services/tal_message_box.h"
#include "tavrel/legacy_tavrel.h"
#include "tests/support/captured_log.h"
#include "tests/support/test_host/test_host.h"
#include "tests/tavrel/label_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QGraphicsItem>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tavrel_test {

/// A reader, its host, and a folder for its files. The host accepts every drawing as a symbol of
/// 30 by 20; its first database has the symbol arrow.svg.
class ReaderTest : public testing::Test
{
protected:
    ReaderTest()
    {
        host.behavior().conversion = recorder::Behavior::Conversion::OfAnything;
        host.behavior().symbolSize = QSizeF(30, 20);
        host.behavior().sourcesHaveFields = false;
        const QString folderOfDatabases = QCoreApplication::applicationDirPath();
        host.behavior().symbols = {
            {folderOfDatabases + u"/symbols.db"_s, {{u"arrow.svg"_s, "arrow"}}}};
        collectBoxes(reader);
    }

    bool import(const QByteArray& bytes) { return reader.importLabelFromFile(written(bytes)); }
    bool import(const LabelFile& label) { return import(label.bytes()); }

    QString written(const QByteArray& bytes)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }

    void collectBoxes(LegacyTavrel& from)
    {
        QObject::connect(&from, &LegacyTavrel::popupShowSignal, &from,
                         [this](QWidget* box) { boxes.append(qobject_cast<TalMessageBox*>(box)); });
    }
    /// The text of the only box; empty if there is none.
    [[nodiscard]] QString boxText() const
    {
        EXPECT_LE(boxes.size(), 1);
        return boxes.isEmpty() ? QString() : textOf(boxes.first());
    }
    [[nodiscard]] static QString textOf(const TalMessageBox* box)
    {
        return box->property("text").toString();
    }
    /// The names that were looked up in the symbol databases.
    [[nodiscard]] QStringList lookUps() const { return host.callsWith("getDataFromSymbolName"); }
    /// The logged errors.
    [[nodiscard]] QStringList errors() const
    {
        QStringList all;
        for (const CapturedLog::Record& record : log.records()) {
            if (record.level == Logger::Error) {
                all.append(record.message);
            }
        }
        return all;
    }

    TestHost host;
    QList<QPointer<TalMessageBox>> boxes; ///< that the readers have announced
    LegacyTavrel reader{host.canvas(), host.datasources()};
    QTemporaryDir folder;
    QString path = folder.filePath(u"label.cnv"_s);
    CapturedLog log;
};

} // namespace tavrel_test
