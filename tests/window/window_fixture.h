#pragma once

#include "host/items/barcode_item.h"
#include "host/items/item.h"
#include "window/label/import_process.h"
#include "window/label/open_label.h"
#include "workbench/canvas/canvas.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

/// Milliseconds; far more than an import takes.
inline constexpr int ImportTimeout = 120'000;

/// A temporary folder and separate settings for a test.
class WindowFixture : public ::testing::Test
{
protected:
    WindowFixture()
    {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           m_folder.filePath(u"settings"_s));
        window::ImportProcess::setProgram(QStringLiteral(LABELPORT_PROGRAM));
        // On a slow machine, a dialog would confuse tests that expect others.
        window::ImportProcess::setDialogDelay(600'000);
    }

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString sample(const QString& name) const
    {
        return QStringLiteral(LABELPORT_SAMPLES "/") + name;
    }

    /// A copy of a sample in the test's folder.
    [[nodiscard]] QString copied(const QString& name) const
    {
        const QString target = path(QFileInfo(name).fileName());
        EXPECT_TRUE(QFile::copy(sample(name), target)) << qPrintable(target);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        return target;
    }

private:
    QTemporaryDir m_folder;
};

/// A label with three items and a counter with five records: a rectangle, a text that shows the
/// counter, a locked line.
[[nodiscard]] window::OpenLabel makeLabel();

/// Saves makeLabel() under this name.
void saveMadeLabel(const QString& fileName);

/// Writes a picture of a widget to the build folder, for review.
void keepPicture(QWidget& widget, const QString& name);

/// The same for an existing picture.
void keepImage(const QImage& image, const QString& name);
