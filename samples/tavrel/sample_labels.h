#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// A label as a file.
struct SampleLabel
{
    QString fileName;
    QByteArray content;
};

/// Labels that look like real ones, one for each version of the format.
[[nodiscard]] QList<SampleLabel> sampleLabels();
