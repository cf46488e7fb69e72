#pragma once

#include "recorder/recording_host.h"

#include <QBuffer>
#include <QList>
#include <QStringList>

#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

/// A recording host whose trace is a list of calls, each on a line:
///
///     item:1 setItemSize 300 75
///     datasources createDatasource 'SystemDatasource'
///
/// Texts are in quotation marks, numbers have at most ten digits, types of items are hexadecimal.
/// Log records and returned values are omitted.
class TestHost
{
public:
    TestHost();

    [[nodiscard]] TalCanvasModel* canvas() { return m_host.canvasModel(); }
    [[nodiscard]] DatasourceController* datasources() { return m_host.datasourceController(); }
    [[nodiscard]] FileController* files() { return m_host.fileController(); }
    [[nodiscard]] recorder::RecordingHost& recorder() { return m_host; }
    [[nodiscard]] recorder::Behavior& behavior() { return m_host.behavior(); }

    /// The calls since the last forgetCalls().
    [[nodiscard]] QStringList calls() const;
    /// The calls on a target, "item:1" or "canvas", without its name.
    [[nodiscard]] QStringList callsOn(const QString& target) const;
    [[nodiscard]] QStringList callsOn(int item) const { return callsOn(targetOf(item)); }
    /// The calls whose line contains this text.
    [[nodiscard]] QStringList callsWith(const char* text) const
    {
        return calls().filter(QString::fromUtf8(text));
    }
    /// The arguments of the last call of this name on a target; null if there was none.
    [[nodiscard]] QString lastCall(const QString& target, const QString& name) const;
    [[nodiscard]] QString lastCall(int item, const QString& name) const
    {
        return lastCall(targetOf(item), name);
    }
    /// The number of calls of this name on all targets.
    [[nodiscard]] int count(const QString& name) const;
    void forgetCalls() { (void)takeTrace(); }
    /// Returns the trace since then, and clears it.
    [[nodiscard]] QByteArray takeTrace();

    /// The representation of bytes in a line.
    [[nodiscard]] static QString shown(const QByteArray& bytes);

    /// The types that the factory was asked for since the last forgetCalls().
    [[nodiscard]] QList<KestTypes::ShapeType> requestedTypes() const;
    /// Items that the factory created, and those that were added to the canvas.
    [[nodiscard]] int createdCount() const { return m_host.createdCount(); }
    [[nodiscard]] int importedCount() const { return m_host.importedCount(); }
    /// Items that still exist.
    [[nodiscard]] int livingItems() const { return int(m_host.itemStates().size()); }
    /// Items that were imported and still exist, of all types or of one.
    [[nodiscard]] int itemCount() const;
    [[nodiscard]] int itemCount(KestTypes::ShapeType type) const;
    /// The item of this number, in the order of creation; null once it is deleted.
    [[nodiscard]] QGraphicsItem* item(int number) const { return m_host.item(number); }

private:
    [[nodiscard]] static QString targetOf(int item) { return u"item:%1"_s.arg(item); }

    QBuffer m_trace;
    recorder::RecordingHost m_host;
};

/// Expected lines of calls.
[[nodiscard]] QStringList lines(std::initializer_list<const char*> texts);
