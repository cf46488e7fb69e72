#include "tests/archive/run_fixture.h"

#include <QDirIterator>
#include <QEventLoop>

#include <algorithm>

RunFixture::RunFixture()
{
    settings.targets = {QStringLiteral("png")};
    settings.outputFolder = folder.path(QStringLiteral("out"));
    settings.version = QStringLiteral("1.0");
    settings.keepsJournal = true;
    settings.workers = 2;
    settings.limits = {300, 512};
    settings.command = {QStringLiteral(ARCHIVE_TEST_PROGRAM),
                        {QStringLiteral("worker"), QStringLiteral("512")}};
}

void RunFixture::input(const QString& name, const QByteArray& content)
{
    const QString path = folder.write(QStringLiteral("in/") + name, content);
    const qsizetype slash = name.lastIndexOf(QLatin1Char('/'));
    inputs.append({path, name, slash < 0 ? QString() : name.left(slash)});
    std::sort(inputs.begin(), inputs.end(), [](const archive::Input& a, const archive::Input& b) {
        return a.shownName < b.shownName;
    });
}

QStringList RunFixture::run()
{
    // A file may stand for several inputs in a row of runs; each name counts once.
    inputs.erase(std::unique(inputs.begin(), inputs.end()), inputs.end());
    QStringList lines;
    reports.clear();
    const QDir out(settings.outputFolder);
    archive::Run archive(inputs, settings, [&](const archive::Delivery& delivery) {
        QString line = QStringLiteral("%1 %2:").arg(
            delivery.isResumed ? QStringLiteral("resumed") : archive::nameOf(delivery.result.fate),
            delivery.input.shownName);
        for (const QString& file : delivery.written) {
            line += QLatin1Char(' ') + out.relativeFilePath(file);
        }
        for (const QString& error : delivery.result.errors) {
            line += QLatin1Char(' ') + error;
        }
        lines.append(line);
        reports.append(delivery.result.report);
    });
    const QString error = archive.open();
    if (!error.isEmpty()) {
        return {error};
    }
    QEventLoop loop;
    QObject::connect(&archive, &archive::Run::finished, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    archive.start();
    loop.exec();
    troubles = archive.troubles();
    progress = archive.progress();
    return lines;
}

QStringList RunFixture::strays() const
{
    QStringList names;
    QDirIterator files(folder.path(QStringLiteral("out")),
                       QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        const bool isExpected =
            files.fileInfo().isDir()
                ? !files.fileName().startsWith(QLatin1Char('.'))
                : files.fileName().endsWith(QStringLiteral(".png")) ||
                      files.fileName().startsWith(QStringLiteral(".labelport-journal"));
        if (!isExpected) {
            names.append(files.fileName());
        }
    }
    return names;
}
