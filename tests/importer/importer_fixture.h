#pragma once

#include "fake_host.h"
#include "importer/legacy_template_importer.h"
#include "journal/journal.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// An importer between a host and readers that only take notes, and settings of its own.
class ImporterTest : public ::testing::Test
{
protected:
    ImporterTest()
    {
        journal() = {};
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           m_folder.filePath(u"settings"_s));
        QDir(m_folder.path()).mkdir(u"default"_s);
        defaultImportFolder() = m_folder.filePath(u"default"_s);
    }

    /// An empty file in the test's folder; its whole name.
    [[nodiscard]] QString file(const QString& name) const
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }
    [[nodiscard]] QString folder() const { return QDir(m_folder.path()).absolutePath(); }
    [[nodiscard]] static QVariant rememberedFolder() { return QSettings().value(u"dir/import"_s); }

    // Never looked into by the importer, so any address does.
    [[nodiscard]] TalCanvasModel* canvasModel() { return reinterpret_cast<TalCanvasModel*>(this); }
    [[nodiscard]] DatasourceController* datasourceController()
    {
        return reinterpret_cast<DatasourceController*>(&m_fileController);
    }

    QTemporaryDir m_folder;
    FakeFileController m_fileController;
    std::unique_ptr<LegacyTemplateImporter> m_importer = std::make_unique<LegacyTemplateImporter>(
        canvasModel(), &m_fileController, datasourceController());
};
