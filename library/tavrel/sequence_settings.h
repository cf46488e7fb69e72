#pragma once

#include <QDataStream>
#include <QString>

namespace tavrel {

/// The counter of a label. Every item that is bound to it gets a data source with these.
struct SequenceSettings
{
    qint32 sequenceTrailingValue = 0; ///< kept, but nothing asks for it
    qint32 sequenceStart = 0;
    qint32 sequenceEnd = 0;
    qint32 sequenceStep = 0;
    qint32 sequenceZeroPad = 0;
    QString sequencePrefix;
    QString sequenceSuffix;
};

[[nodiscard]] SequenceSettings readSequenceSettings(QDataStream& stream, quint32 version);

} // namespace tavrel
