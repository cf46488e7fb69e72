#pragma once

#include "host/kest_types.h"
#include "importer/reader_choice.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <map>

/// A label of each format that holds an object of every kind that its reader makes.
class CompleteLabels
{
public:
    /// Items of a label by the code that they are made with.
    using Counts = std::map<KestTypes::ShapeType, int>;

    CompleteLabels();

    /// The label's file.
    [[nodiscard]] QString path(ReaderKind reader) const;
    /// What an import of it puts on the canvas of a host that makes everything.
    [[nodiscard]] static Counts items(ReaderKind reader);

private:
    QTemporaryDir m_folder;
};
