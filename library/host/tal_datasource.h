#pragma once

#include <QList>
#include <QString>
#include <QVariant>

/// A source of variable content: a counter, the clock, a list.
///
/// Kinds and their properties, with the names that importers use:
///
/// | kind                 | properties                                                    |
/// |----------------------|---------------------------------------------------------------|
/// | "SequenceDatasource" | "Prefix", "Suffix" (text), "Start", "End", "Step", "ZeroPad" (int) |
/// | "SystemDatasource"   | "DateFormat", "TimeFormat" (Qt format texts, empty for none)  |
/// | "TextListDatasource" | "TextList" (QStringList)                                      |
class TalDatasource
{
public:
    virtual ~TalDatasource() = default;

    /// Sets a property; a name that the kind does not have is ignored.
    virtual void setDatasourceProperty(const QString& name, const QVariant& value) = 0;
    /// Names of the fields that the source offers.
    [[nodiscard]] virtual QList<QString> fields() const = 0;
    /// Selects the fields that the label uses.
    virtual void setSelectedFields(const QList<QString>& fields) = 0;
};
