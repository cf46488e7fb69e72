#pragma once

#include <QString>

/// What no reader can do without: the same bytes gone through with what Qt has for them, and
/// nothing made of it. A reader cannot be faster than its floor without leaving Qt's tools.
namespace bench {

/// The file's fields, one after the other, by a bare QDataStream.
void walkCanvasFile(const QString& path);
/// The file into a QDomDocument.
void parseXmlLabel(const QString& path);
/// Both members unpacked, each into a QDomDocument.
void parseDrawing(const QString& path);

} // namespace bench
