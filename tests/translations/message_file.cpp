#include "tests/translations/message_file.h"

#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

void readTranslation(QXmlStreamReader& xml, Message& message)
{
    message.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            message.forms.append(xml.readElementText());
        } else if (xml.isCharacters()) {
            message.translation += xml.text();
        } else if (xml.isEndElement()) {
            return;
        }
    }
}

Message readMessage(QXmlStreamReader& xml, const QString& context)
{
    Message message;
    message.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            message.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            readTranslation(xml, message);
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

void readContext(QXmlStreamReader& xml, QList<Message>& messages)
{
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            messages.append(readMessage(xml, context));
        } else {
            xml.skipCurrentElement();
        }
    }
}

} // namespace

MessageFile readMessages(const QString& name)
{
    QFile file(QStringLiteral(LABELPORT_TRANSLATIONS "/labelport_%1.ts").arg(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
    QXmlStreamReader xml(&file);
    MessageFile result;
    xml.readNextStartElement();
    result.language = xml.attributes().value(QLatin1String("language")).toString();
    while (xml.readNextStartElement()) {
        readContext(xml, result.messages);
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return result;
}
