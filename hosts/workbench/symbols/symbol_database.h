#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// A symbol database: an SQLite file with the table
/// `symbols(name TEXT PRIMARY KEY NOT NULL, svg BLOB NOT NULL)`.
///
/// It is opened for reading only and comes from a file that nobody vouches for.
namespace workbench::symbols {

class SymbolDatabase
{
public:
    /// Opens the file. What it is not good for is told by error().
    explicit SymbolDatabase(const QString& path);
    ~SymbolDatabase();
    SymbolDatabase(const SymbolDatabase&) = delete;
    SymbolDatabase& operator=(const SymbolDatabase&) = delete;

    [[nodiscard]] bool isOpen() const { return m_open; }
    /// Why the last operation failed, in a sentence; empty when it did not.
    [[nodiscard]] QString error() const { return m_error; }

    /// The SVG document stored under the name; empty when there is none or the file is
    /// damaged.
    [[nodiscard]] QByteArray svg(const QString& name);

private:
    void open(const QString& path);
    void close();
    [[nodiscard]] bool hasSymbolTable();
    void fail(const QString& error);

    QString m_connection;
    QString m_error;
    bool m_open = false;
};

} // namespace workbench::symbols
