#pragma once

#include "tests/support/canvas_writer/canvas_records.h"

#include <QDataStream>

/// Writes the bytes of a canvas file, record by record, in the layout of one version.
///
/// It checks nothing: records may be in any order, missing or invalid, and raw() writes any
/// bytes of a damaged file. A version that does not exist is written like the nearest one that
/// does. Calls can be chained:
///
///     const QByteArray file = CanvasWriter(2000024).start().add(shape).add(text).bytes();
class CanvasWriter
{
public:
    explicit CanvasWriter(quint32 version);
    CanvasWriter(const CanvasWriter&) = delete;
    CanvasWriter& operator=(const CanvasWriter&) = delete;

    [[nodiscard]] quint32 version() const { return m_version; }
    [[nodiscard]] const QByteArray& bytes() const { return m_bytes; }

    /// All records before the items.
    CanvasWriter& start(const canvas::CanvasRecord& record = {},
                        const canvas::SequenceRecord& sequence = {},
                        const canvas::DatabaseList& databases = {});

    CanvasWriter& add(const canvas::FileHeader& header);
    CanvasWriter& add(const canvas::CanvasRecord& record);
    CanvasWriter& add(const canvas::SequenceRecord& record);
    CanvasWriter& add(const canvas::DatabaseList& list);

    /// Items, each preceded by its type code.
    CanvasWriter& add(const canvas::ShapeRecord& record);
    CanvasWriter& add(const canvas::PictureRecord& record);
    CanvasWriter& add(const canvas::SymbolRecord& record);
    CanvasWriter& add(const canvas::TextRecord& record);
    /// Any code may precede a barcode's fields; the two valid ones are in canvas::TypeCode.
    CanvasWriter& add(const canvas::BarcodeRecord& record, qint32 code = canvas::LinearBarcodeCode);
    /// A type code alone.
    CanvasWriter& code(qint32 typeCode);

    /// Anything: bytes as they are, or a single value in the stream's encoding.
    CanvasWriter& raw(const QByteArray& bytes);
    template <typename Value>
    CanvasWriter& put(const Value& value)
    {
        m_stream << value;
        return *this;
    }
    /// A text, byte array or count with this length, but only these bytes.
    CanvasWriter& claim(quint32 length, const QByteArray& held = {});

private:
    void write(const canvas::ItemHeader& header);
    void writeSize(std::optional<double> size, double inchesWhenUnset, double dotsPerInch);
    void writeTextBefore22(const canvas::TextRecord& record);
    void writeTextFrom22(const canvas::TextRecord& record);
    void writeTextPen(const canvas::TextRecord& record);
    void writeTextOptions(const canvas::TextRecord& record);
    void writeBarcodeBefore22(const canvas::BarcodeRecord& record);
    void writeBarcodeFrom22(const canvas::BarcodeRecord& record);
    void writeBarcodeLook(const canvas::BarcodeRecord& record);

    quint32 m_version;
    QByteArray m_bytes;
    QDataStream m_stream;
};
