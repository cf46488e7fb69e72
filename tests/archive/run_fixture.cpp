#include "tests/archive/run_fixture.h"

#include <QDirIterator>
#include <QEventLoop>

#include <algorithm>

using namespace Qt::StringLiterals;

RunFixture::RunFixture()
{
    settings.targets = {u"png"_s};
    settings.outputFolder = folder.path(u"out"_s);
    settings.version = u"1.0"_s;
    settings.keepsJournal = true;
    settings.workers = 2;
    settings.limits = {300, 512};
    settings.command = {QStringLiteral(ARCHIVE_TEST_PROGRAM), {u"worker"_s, u"512"_s}};
}

void RunFixture::input(const QString& name, const QByteArray& content)
{
    const QString path = folder.write(u"in/"_s + name, content);
    const qsizetype slash = name.lastIndexOf(u'/');
    inputs.append({path, name, slash < 0 ? QString() : name.left(slash)});
    std::sort(inputs.begin(), inputs.end(), [](const archive::Input& a, const archive::Input& b) {
        return a.shownName < b.shownName;
    });
}

QStringList RunFixture::run()
{
    // A file may occur in several runs; each name counts once.
    inputs.erase(std::unique(inputs.begin(), inputs.end()), inputs.end());
    QStringList lines;
    reports.clear();
    const QDir out(settings.outputFolder);
    const archive::Inputs files(inputs);
    archive::Run archive(files, settings, [&](const archive::Delivery& delivery) {
        QString line = u"%1 %2:"_s.arg(
            delivery.isResumed ? u"resumed"_s : archive::nameOf(delivery.result.outcome),
            delivery.input.shownName);
        for (const QString& file : delivery.written) {
            line += u' ' + out.relativeFilePath(file);
        }
        for (const QString& error : delivery.result.errors) {
            line += u' ' + error;
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
    warnings = archive.warnings();
    progress = archive.progress();
    return lines;
}

QStringList RunFixture::unexpectedFiles() const
{
    QStringList names;
    QDirIterator files(folder.path(u"out"_s),
                       QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        const bool isExpected = files.fileInfo().isDir()
                                    ? !files.fileName().startsWith(u'.')
                                    : files.fileName().endsWith(u".png"_s) ||
                                          files.fileName().startsWith(u".labelport-journal"_s);
        if (!isExpected) {
            names.append(files.fileName());
        }
    }
    return names;
}
