#include "tests/support/test_host/test_host.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Double:
        return QString::number(value.toDouble(), 'g', 10);
    case QJsonValue::String:
        return u'\'' + value.toString() + u'\'';
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    case QJsonValue::Array: {
        QStringList elements;
        for (const QJsonValue element : value.toArray()) {
            elements.append(textOf(element));
        }
        return u'[' + elements.join(u' ') + u']';
    }
    case QJsonValue::Object: {
        const QJsonObject object = value.toObject();
        if (object.contains(u"width"_s)) {
            return textOf(object[u"width"_s]) + u'x' + textOf(object[u"height"_s]);
        }
        return textOf(object[u"bytes"_s]) + u':' + object[u"sha1"_s].toString();
    }
    default:
        return u"null"_s;
    }
}

QString lineOf(const QJsonObject& call)
{
    QStringList words{call[u"on"_s].toString(), call[u"call"_s].toString()};
    for (const QJsonValue argument : call[u"args"_s].toArray()) {
        words.append(words[0] == u"factory"_s ? QString::number(argument.toInt(), 16)
                                              : textOf(argument));
    }
    return words.join(u' ');
}

QIODevice& opened(QBuffer& buffer)
{
    buffer.open(QIODevice::WriteOnly);
    return buffer;
}

} // namespace

TestHost::TestHost()
    : m_host(opened(m_trace))
{}

QStringList TestHost::calls() const
{
    QStringList lines;
    for (const QByteArray& line : m_trace.data().split('\n')) {
        const QJsonObject call = QJsonDocument::fromJson(line).object();
        if (call.contains(u"call"_s)) {
            lines.append(lineOf(call));
        }
    }
    return lines;
}

QStringList TestHost::callsOn(const QString& target) const
{
    QStringList lines;
    for (const QString& line : calls()) {
        if (line.startsWith(target + u' ')) {
            lines.append(line.sliced(target.size() + 1));
        }
    }
    return lines;
}

QString TestHost::lastCall(const QString& target, const QString& name) const
{
    QString arguments;
    for (const QString& call : callsOn(target)) {
        if (call.startsWith(name + u' ')) {
            arguments = call.sliced(name.size() + 1);
        }
    }
    return arguments;
}

int TestHost::count(const QString& name) const
{
    const QStringList all = calls();
    return static_cast<int>(std::count_if(all.begin(), all.end(), [&](const QString& line) {
        return line.section(u' ', 1, 1) == name;
    }));
}

QByteArray TestHost::takeTrace()
{
    m_trace.seek(0);
    return std::exchange(m_trace.buffer(), {});
}

QString TestHost::shown(const QByteArray& bytes)
{
    return textOf(QJsonDocument::fromJson(recorder::TraceValue(bytes).json()).object());
}

QList<KestTypes::ShapeType> TestHost::requestedTypes() const
{
    QList<KestTypes::ShapeType> types;
    for (const QString& call : callsOn(u"factory"_s)) {
        types.append(KestTypes::ShapeType(call.section(u' ', 1).toInt(nullptr, 16)));
    }
    return types;
}

int TestHost::itemCount() const
{
    const auto states = m_host.itemStates();
    return static_cast<int>(std::count_if(states.begin(), states.end(),
                                          [](const auto& state) { return state.imported; }));
}

int TestHost::itemCount(KestTypes::ShapeType type) const
{
    const auto states = m_host.itemStates();
    return static_cast<int>(std::count_if(states.begin(), states.end(), [=](const auto& state) {
        return state.imported && state.type == type;
    }));
}

QStringList lines(std::initializer_list<const char*> texts)
{
    QStringList all;
    for (const char* text : texts) {
        all.append(QString::fromUtf8(text));
    }
    return all;
}
