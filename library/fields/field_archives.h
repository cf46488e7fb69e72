#pragma once

#include "fields/field_problem.h"
#include "fields/json_values.h"

#include <QJsonArray>
#include <QJsonObject>

#include <concepts>
#include <functional>
#include <optional>
#include <type_traits>
#include <utility>

/// Structs to JSON and back. A struct is described once, by a function next to it, in its
/// namespace:
///
///     void describe(auto& field, fields::ValuesOf<Size> auto& size)
///     {
///         field("width", size.width);
///         field("height", size.height);
///     }
///
/// FieldWriter and FieldReader call it. Members may be single values, which have a Json<T>, other
/// structs, lists of structs, and optional structs.
namespace fields {

/// T or const T: describe() serves both writing and reading.
template <class V, class T>
concept ValuesOf = std::same_as<std::remove_const_t<V>, T>;

/// A value that has a Json<T>; everything else is a group with fields of its own.
template <class T>
concept SingleValue = requires
{
    Json<T>::Kind;
};

/// Collects fields in a JSON object.
class FieldWriter
{
public:
    /// @param progress called after each entry of a list of structs; may be empty
    explicit FieldWriter(std::function<void()> progress = {})
        : m_progress(std::move(progress))
    {}

    [[nodiscard]] QJsonObject object() const { return m_object; }

    template <class T>
    void operator()(const char* name, const T& value)
    {
        m_object.insert(QLatin1String(name), json(value));
    }

    /// A missing group is left out.
    template <class T>
    requires(!SingleValue<std::optional<T>>) void operator()(const char* name,
                                                             const std::optional<T>& group)
    {
        if (group) {
            (*this)(name, *group);
        }
    }

private:
    template <SingleValue T>
    [[nodiscard]] QJsonValue json(const T& value) const
    {
        return Json<T>::write(value);
    }

    template <class T>
    requires(!SingleValue<T>) [[nodiscard]] QJsonValue json(const T& group) const
    {
        FieldWriter writer(m_progress);
        describe(writer, group);
        return writer.object();
    }

    template <class T>
    requires(!SingleValue<QList<T>>) [[nodiscard]] QJsonValue json(const QList<T>& groups) const
    {
        QJsonArray array;
        for (const T& group : groups) {
            array.append(json(group));
            if (m_progress) {
                m_progress();
            }
        }
        return array;
    }

    std::function<void()> m_progress;
    QJsonObject m_object;
};

/// Fills fields from a JSON object. Reading ends at the first field that does not fit; the
/// values must not be used then. Fields that are not described are ignored.
class FieldReader
{
public:
    /// @param longestList most entries that a list of groups may have
    FieldReader(const QJsonObject& object, qsizetype longestList)
        : m_object(object)
        , m_longestList(longestList)
    {}

    /// Where and why reading ended, "items[3].pen.color is not a color"; empty on success.
    [[nodiscard]] QString error() const { return m_problem ? m_problem->text() : QString(); }

    template <class T>
    void operator()(const char* name, T& value)
    {
        if (m_problem) {
            return;
        }
        const QJsonValue json = m_object.value(QLatin1String(name));
        m_problem = json.isUndefined() ? fieldIsMissing() : read(json, value);
        if (m_problem) {
            m_problem->path.prepend(QLatin1String(name));
        }
    }

    template <class T>
    requires(!SingleValue<std::optional<T>>) void operator()(const char* name,
                                                             std::optional<T>& group)
    {
        group.reset();
        if (m_object.contains(QLatin1String(name))) {
            (*this)(name, group.emplace());
        }
    }

private:
    template <SingleValue T>
    [[nodiscard]] MaybeProblem read(const QJsonValue& json, T& value) const
    {
        return Json<T>::read(json, value) ? MaybeProblem() : fieldIsNot(Json<T>::Kind);
    }

    template <class T>
    requires(!SingleValue<T>) [[nodiscard]] MaybeProblem
        read(const QJsonValue& json, T& group) const
    {
        if (!json.isObject()) {
            return fieldIsNot(GroupKind);
        }
        FieldReader reader(json.toObject(), m_longestList);
        describe(reader, group);
        if (reader.m_problem) {
            reader.m_problem->path.prepend(u'.');
        }
        return reader.m_problem;
    }

    template <class T>
    requires(!SingleValue<QList<T>>) [[nodiscard]] MaybeProblem
        read(const QJsonValue& json, QList<T>& groups) const
    {
        const QJsonArray array = json.toArray();
        if (!json.isArray()) {
            return fieldIsNot(ListKind);
        }
        if (array.size() > m_longestList) {
            return fieldIsLonger(m_longestList);
        }
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
    qsizetype m_longestList;
    MaybeProblem m_problem;
};

} // namespace fields
