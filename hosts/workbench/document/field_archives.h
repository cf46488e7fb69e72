#pragma once

#include "workbench/document/document_limits.h"
#include "workbench/document/field_words.h"
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
    [[nodiscard]] QString error() const { return m_problem ? m_problem->text() : QString(); }

    template <class T>
    void operator()(const char* name, T& value)
    {
        if (m_problem)
            return;
        const QJsonValue json = m_object.value(QLatin1String(name));
        m_problem = json.isUndefined() ? fieldIsMissing() : read(json, value);
        if (m_problem)
            m_problem->path.prepend(QLatin1String(name));
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
    [[nodiscard]] static MaybeProblem read(const QJsonValue& json, T& value)
    {
        return Json<T>::read(json, value) ? MaybeProblem() : fieldIsNot(Json<T>::Kind);
    }

    template <class T>
    requires(!SingleValue<T>) [[nodiscard]] static MaybeProblem
        read(const QJsonValue& json, T& group)
    {
        if (!json.isObject())
            return fieldIsNot(GroupKind);
        FieldReader reader(json.toObject());
        describe(reader, group);
        if (reader.m_problem)
            reader.m_problem->path.prepend(u'.');
        return reader.m_problem;
    }

    template <class T>
    requires(!SingleValue<QList<T>>) [[nodiscard]] static MaybeProblem
        read(const QJsonValue& json, QList<T>& groups)
    {
        const QJsonArray array = json.toArray();
        if (!json.isArray())
            return fieldIsNot(ListKind);
        if (array.size() > limits::Items)
            return fieldIsLonger(limits::Items);
        groups.clear();
        for (qsizetype i = 0; i < array.size(); ++i) {
            MaybeProblem problem = read(array[i], groups.emplaceBack());
            if (problem) {
                problem->path.prepend(QLatin1Char('[') + QString::number(i) + QLatin1Char(']'));
                return problem;
            }
        }
        return {};
    }

    QJsonObject m_object;
    MaybeProblem m_problem;
};

} // namespace workbench::document
