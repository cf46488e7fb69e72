#pragma once

#include <QString>

/// The minimum for any reader: the same bytes read with Qt's classes, and nothing built. A reader
/// that uses these classes cannot be faster than its floor.
namespace bench {

/// Reads the file's fields with a bare QDataStream.
void walkCanvasFile(const QString& path);
/// Parses the file into a QDomDocument.
void parseXmlLabel(const QString& path);
/// Unpacks both members and parses each into a QDomDocument.
void parseDrawing(const QString& path);

} // namespace bench
