#pragma once

#include "window/properties/property.h"

#include <QCoreApplication>

#include <optional>
#include <type_traits>
#include <utility>

namespace window {

// How the properties of items are listed.

struct PropertyWords
{
    Q_DECLARE_TR_FUNCTIONS(window::ItemDescription)
};

inline constexpr double LongestLength = 100'000.0; // points, 35 meters

template <class Value>
[[nodiscard]] QVariant toVariant(const Value& value)
{
    if constexpr (std::is_same_v<Value, signed char>) {
        return int(value);
    } else {
        return QVariant::fromValue(value);
    }
}

/// Collects properties under one group at a time.
class PropertyTable
{
public:
    void begin(const QString& group) { m_group = group; }

    Property<workbench::ItemValues>&
    add(const QString& name, PropertyKind kind,
        std::function<QVariant(const workbench::ItemValues&)> get,
        std::function<void(workbench::ItemValues&, const QVariant&)> set = {})
    {
        Property<workbench::ItemValues> property;
        property.group = m_group;
        property.name = name;
        property.kind = kind;
        property.get = std::move(get);
        property.set = std::move(set);
        property.minimum = -LongestLength;
        property.maximum = LongestLength;
        m_properties.append(property);
        return m_properties.last();
    }

    /// A member of a group that every item has.
    template <class Group, class Value>
    Property<workbench::ItemValues>& add(const QString& name, PropertyKind kind,
                                         Group workbench::ItemValues::*group, Value Group::*member)
    {
        return add(
            name, kind,
            [=](const workbench::ItemValues& values) { return toVariant(values.*group.*member); },
            [=](workbench::ItemValues& values, const QVariant& value) {
                values.*group.*member = value.value<Value>();
            });
    }

    /// A member of a group that only some items have.
    template <class Group, class Value>
    Property<workbench::ItemValues>& add(const QString& name, PropertyKind kind,
                                         std::optional<Group> workbench::ItemValues::*group,
                                         Value Group::*member)
    {
        return add(
            name, kind,
            [=](const workbench::ItemValues& values) {
                return values.*group ? toVariant((*(values.*group)).*member) : QVariant();
            },
            [=](workbench::ItemValues& values, const QVariant& value) {
                (*(values.*group)).*member = value.value<Value>();
            });
    }

    [[nodiscard]] QList<Property<workbench::ItemValues>> properties() const { return m_properties; }

private:
    QString m_group;
    QList<Property<workbench::ItemValues>> m_properties;
};

/// @param minimumName  shown instead of the minimum
template <class Values>
void setRange(Property<Values>& property, double minimum, double maximum,
              const QString& minimumName = {})
{
    property.minimum = minimum;
    property.maximum = maximum;
    property.minimumName = minimumName;
}

void addBarcodeProperties(PropertyTable& table);
void addPictureProperties(PropertyTable& table);
void addShapeProperties(PropertyTable& table);

} // namespace window
