#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// A symbol database: an SQLite file with the table
/// `symbols(name TEXT PRIMARY KEY NOT NULL, svg BLOB NOT NULL)`.
///
/// Opened for reading only; the file is not trusted.
namespace workbench::symbols {

/// A symbol database, open for reading. The destructor closes it.
class SymbolDatabase
{
public:
    /// Opens the file. On failure isOpen() is false and error() gives the reason.
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
