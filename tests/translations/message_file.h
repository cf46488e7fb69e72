#pragma once

#include <QList>
#include <QString>

/// The content of a message file (*.ts).
struct Message
{
    QString context;
    QString source;
    QString comment;
    QString translation;
    QStringList forms; ///< one for each grammatical number; empty for a text without numbers
    bool isFinished = false;
};

struct MessageFile
{
    QString language;
    QList<Message> messages;
};

/// Reads translations/labelport_NAME.ts.
[[nodiscard]] MessageFile readMessages(const QString& name);
