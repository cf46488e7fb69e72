#include "window/review/label_list_model.h"

#include "importer/reader_choice.h"
#include "window/label/open_label.h"
#include "workbench/document/label_file.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct LabelListModelTr
{
    Q_DECLARE_TR_FUNCTIONS(window::LabelStates)
};

QStringList labelPatterns()
{
    QStringList patterns{u"*"_s + labelSuffix()};
    for (const Reader& reader : Readers) {
        for (const QLatin1String suffix : reader.suffixes) {
            if (!suffix.isEmpty()) {
                patterns.append(u"*."_s + suffix);
            }
        }
    }
    return patterns;
}

LabelState stateOf(const migration::FileReport& report)
{
    switch (migration::verdictOf(report)) {
    case migration::Verdict::Complete:
        return LabelState::Complete;
    case migration::Verdict::Changed:
        return LabelState::Changed;
    case migration::Verdict::Lossy:
        return LabelState::Lossy;
    case migration::Verdict::Failed:
        break;
    }
    return LabelState::Failed;
}

// Gives each saved label to the legacy label of its name, and removes it from the list.
QList<LabelEntry> joined(const QList<LabelEntry>& files)
{
    QHash<QString, QString> saved;
    for (const LabelEntry& file : files) {
        if (isSavedLabel(file.path)) {
            saved.insert(savedNameFor(file.path), file.path);
        }
    }
    QHash<QString, QString> unused = saved;
    QList<LabelEntry> entries;
    for (LabelEntry entry : files) {
        if (!isSavedLabel(entry.path)) {
            entry.savedPath = saved.value(savedNameFor(entry.path));
            unused.remove(savedNameFor(entry.path));
            entries.append(entry);
        }
    }
    for (const LabelEntry& file : files) {
        if (isSavedLabel(file.path) && unused.contains(savedNameFor(file.path))) {
            entries.append(file);
        }
    }
    return entries;
}

// Centered on a picture of one size, so that the names beside the pictures are aligned.
QPixmap thumbnailOf(const QByteArray& png)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap thumbnail(LabelListModel::ThumbnailSize * ratio);
    thumbnail.fill(Qt::transparent);
    QPixmap picture;
    if (picture.loadFromData(png, "PNG")) {
        const QPixmap scaled =
            picture.scaled(thumbnail.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QRect place(QPoint(), scaled.size());
        place.moveCenter(thumbnail.rect().center());
        QPainter(&thumbnail).drawPixmap(place, scaled);
    }
    thumbnail.setDevicePixelRatio(ratio);
    return thumbnail;
}

} // namespace

QString stateName(LabelState state)
{
    switch (state) {
    case LabelState::Waiting:
        return LabelListModelTr::tr("Waiting");
    case LabelState::Complete:
        return LabelListModelTr::tr("Complete");
    case LabelState::Changed:
        return LabelListModelTr::tr("Changed");
    case LabelState::Lossy:
        return LabelListModelTr::tr("With losses");
    case LabelState::Failed:
        return LabelListModelTr::tr("Failed");
    case LabelState::Edited:
        break;
    }
    return LabelListModelTr::tr("Edited");
}

LabelListModel::LabelListModel(QObject* parent)
    : QAbstractListModel(parent)
{}

bool LabelListModel::setFolder(const QString& folder, int mostFiles)
{
    const QDir root(folder);
    const QStringList patterns = labelPatterns();
    QList<LabelEntry> files;
    // Without patterns, which would visit any number of other files in one step.
    QDirIterator walk(root.absolutePath(), QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    int visited = 0;
    for (; walk.hasNext() && visited < mostFiles; ++visited) {
        const QString path = walk.next();
        const QFileInfo file = walk.fileInfo();
        if (!file.isDir() && QDir::match(patterns, file.fileName())) {
            LabelEntry entry;
            entry.path = path;
            entry.name = root.relativeFilePath(path);
            files.append(entry);
        }
    }
    const bool isComplete = !walk.hasNext();
    QList<LabelEntry> entries = joined(files);
    std::sort(entries.begin(), entries.end(), [](const LabelEntry& one, const LabelEntry& other) {
        return QString::localeAwareCompare(one.name, other.name) < 0;
    });
    beginResetModel();
    m_entries = entries;
    endResetModel();
    return isComplete;
}

int LabelListModel::rowOf(const QString& file) const
{
    const QString path = QFileInfo(file).absoluteFilePath();
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [&path](const LabelEntry& entry) {
            return entry.path == path || savedNameFor(entry.path) == path;
        });
    return found != m_entries.end() ? static_cast<int>(found - m_entries.begin()) : -1;
}

QString LabelListModel::refreshEdited(int row)
{
    LabelEntry& entry = m_entries[row];
    if (!isSavedLabel(entry.path)) {
        const QString saved = savedNameFor(entry.path);
        entry.savedPath = QFileInfo::exists(saved) ? saved : QString();
    }
    const QString saved = isSavedLabel(entry.path) ? entry.path : entry.savedPath;
    entry.isEdited = !saved.isEmpty() && !workbench::document::isUneditedImport(saved);
    return entry.fileToOpen();
}

void LabelListModel::setReport(int row, const migration::FileReport& report)
{
    LabelEntry& entry = m_entries[row];
    entry.state = stateOf(report);
    if (entry.isEdited && entry.state != LabelState::Failed) {
        entry.state = LabelState::Edited;
    }
    entry.summary = migration::summaryOf(report);
    entry.thumbnail = report.thumbnail;
    Q_EMIT dataChanged(index(row), index(row));
}

int LabelListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant LabelListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size()) {
        return {};
    }
    const LabelEntry& entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return QString(entry.name + u'\n' + stateName(entry.state));
    case Qt::ToolTipRole:
        return entry.summary.isEmpty() ? entry.path : QString(entry.path + u'\n' + entry.summary);
    case Qt::DecorationRole:
        return thumbnailOf(entry.thumbnail);
    case StateRole:
        return static_cast<int>(entry.state);
    case NameRole:
        return entry.name;
    case FileRole:
        return entry.fileToOpen();
    default:
        return {};
    }
}

} // namespace window
