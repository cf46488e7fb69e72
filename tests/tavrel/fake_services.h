#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>

class TalMessageBox;

namespace tavrel_test {

/// The results of the fake services and their calls. One per process, because the importer
/// creates the services itself; reset() before each test.
struct FakeServices
{
    struct Box
    {
        QString title;
        QString text;
        int buttons = 0;
        int defaultButton = 0;
        QString detail;
        qsizetype captionCount = 0;
        QPointer<TalMessageBox> box;
    };

    /// Symbols by database file name and symbol name.
    QHash<QString, QHash<QString, QByteArray>> databases;
    QStringList databasePaths;
    QStringList lookUps;
    int databasesAlive = 0;

    /// The result of converting a document.
    QHash<QByteArray, QByteArray> conversions;
    QList<QByteArray> loadedDocuments;
    int creatorsMade = 0;
    int creatorsAlive = 0;

    QList<int> linearCodes;
    QList<int> matrixCodes;
    QList<int> askedCodes;

    QList<Box> boxes;

    static FakeServices& instance();
    static FakeServices& reset();
};

} // namespace tavrel_test
