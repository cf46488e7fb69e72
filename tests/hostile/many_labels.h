#pragma once

#include "importer/reader_choice.h"

#include <QList>
#include <QString>
#include <QTemporaryDir>

/// A label's file and who reads it.
struct Label
{
    QString path;
    ReaderKind reader;
};

/// The samples, and beside each some that were damaged: cut short, with bytes changed, with
/// another format's content under its name. The damage is the same in every run.
class ManyLabels
{
public:
    explicit ManyLabels(const QString& samples);

    [[nodiscard]] const QList<Label>& labels() const { return m_labels; }

private:
    void add(const QString& name, const QByteArray& bytes);
    void addWithDamage(const QString& path);

    QTemporaryDir m_folder;
    QList<Label> m_labels;
    quint32 m_noise = 1;
};
