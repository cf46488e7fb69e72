#pragma once

#include "workbench/document/document_limits.h"
#include "workbench/document/json_values.h"
#include "workbench/document/label_fields.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

/// The two archives that describe() names fields to.
namespace workbench::document {

/// A single value, which has a Json<T>; everything else is a group with fields of its own.
template <class T>
concept SingleValue = requires
{
    Json<T>::Kind;
};

/// Collects fields in a JSON object.
class FieldWriter
{
public:
    [[nodiscard]] QJsonObject object() const { return m_object; }

    template <class T>
    void operator()(const char* name, const T& value)
    {
        m_object.insert(QLatin1String(name), json(value));
    }

    /// A group that an item does not have is left out.
    template <class T>
    requires(!SingleValue<std::optional<T>>) void operator()(const char* name,
                                                             const std::optional<T>& group)
    {
        if (group)
            (*this)(name, *group);
    }

private:
    template <SingleValue T>
    [[nodiscard]] static QJsonValue json(const T& value)
    {
        return Json<T>::write(value);
    }

    template <class T>
    requires(!SingleValue<T>) [[nodiscard]] static QJsonValue json(const T& group)
    {
        FieldWriter writer;
        describe(writer, group);
        return writer.object();
    }

    template <class T>
    requires(!SingleValue<QList<T>>) [[nodiscard]] static QJsonValue json(const QList<T>& groups)
    {
        QJsonArray array;
        for (const T& group : groups)
            array.append(json(group));
        return array;
    }

    QJsonObject m_object;
};

/// Fills fields from a JSON object. The first field that does not fit ends the reading; the
/// values are of no use then.
class FieldReader
{
public:
    explicit FieldReader(const QJsonObject& object)
        : m_object(object)
    {}

    /// Where and why reading ended, "items[3].pen.color is not a color"; empty when it did not.
    [[nodiscard]] QString error() const { return m_error; }

    template <class T>
    void operator()(const char* name, T& value)
    {
        if (!m_error.isEmpty())
            return;
        const QJsonValue json = m_object.value(QLatin1String(name));
        const QString problem =
            json.isUndefined() ? QStringLiteral(" is missing") : read(json, value);
        if (!problem.isEmpty())
            m_error = QLatin1String(name) + problem;
    }

    template <class T>
    requires(!SingleValue<std::optional<T>>) void operator()(const char* name,
                                                             std::optional<T>& group)
    {
        group.reset();
        if (m_object.contains(QLatin1String(name)))
            (*this)(name, group.emplace());
    }

private:
    template <SingleValue T>
    [[nodiscard]] static QString read(const QJsonValue& json, T& value)
    {
        return Json<T>::read(json, value) ? QString()
                                          : QStringLiteral(" is not %1").arg(Json<T>::Kind);
    }

    template <class T>
    requires(!SingleValue<T>) [[nodiscard]] static QString read(const QJsonValue& json, T& group)
    {
        if (!json.isObject())
            return QStringLiteral(" is not a group of fields");
        FieldReader reader(json.toObject());
        describe(reader, group);
        return reader.error().isEmpty() ? QString() : u'.' + reader.error();
    }

    template <class T>
    requires(!SingleValue<QList<T>>) [[nodiscard]] static QString
        read(const QJsonValue& json, QList<T>& groups)
    {
        const QJsonArray array = json.toArray();
        if (!json.isArray())
            return QStringLiteral(" is not a list");
        if (array.size() > limits::Items)
            return QStringLiteral(" is longer than %1").arg(limits::Items);
        groups.clear();
        for (qsizetype i = 0; i < array.size(); ++i) {
            const QString problem = read(array[i], groups.emplaceBack());
            if (!problem.isEmpty())
                return QStringLiteral("[%1]%2").arg(QString::number(i), problem);
        }
        return {};
    }

    QJsonObject m_object;
    QString m_error;
};

} // namespace workbench::document
