#pragma once

#include "importer/legacy_template_importer.h"
#include "importer/reader_choice.h"

/// An import by the reader of this kind.
[[nodiscard]] inline bool importBy(LegacyTemplateImporter& importer, ReaderKind reader,
                                   const QString& path)
{
    switch (reader) {
    case ReaderKind::Orvanta:
        return importer.importLabelFromOrvantaFile(path);
    case ReaderKind::OpenDocument:
        return importer.importLabelFromOpenOfficeFile(path);
    case ReaderKind::Tavrel:
        break;
    }
    return importer.importLabelFromTavrelFile(path);
}
