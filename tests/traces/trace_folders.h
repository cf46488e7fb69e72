#pragma once

#include <QString>
#include <QStringList>

/// One sample and the trace that it is to give.
struct TracedSample
{
    QString name; ///< folder and file, "tavrel/shelf.cnv"
    QString samplePath;
    QString referencePath; ///< exists or not
};

/// The samples and their references, which stand side by side in folders named after the
/// readers: samples/tavrel/shelf.cnv and tavrel/shelf.cnv.jsonl.
class TraceFolders
{
public:
    TraceFolders(const QString& samples, const QString& references);

    /// Every label among the samples, in order.
    [[nodiscard]] QList<TracedSample> samples() const;
    /// References whose sample is gone.
    [[nodiscard]] QStringList orphans() const;

private:
    QString m_samples;
    QString m_references;
};
