#include "window/sources/source_dialog.h"

#include "workbench/datasources/sequence_source.h"
#include "workbench/datasources/text_list_source.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace window {

using namespace Qt::Literals::StringLiterals;

namespace {

using workbench::datasources::DatasourceController;
using workbench::datasources::SequenceSource;
using workbench::datasources::SystemSource;
using workbench::datasources::TextListSource;

constexpr int LeastNumber = std::numeric_limits<int>::min();
constexpr int MostNumber = std::numeric_limits<int>::max();
// An example of a longer text is cut.
constexpr qsizetype ExampleLength = 200;

// no translation: letters of formats
constexpr const char* DateFormats = "yyyy-MM-dd|dd.MM.yyyy|dd/MM/yyyy|MM/dd/yyyy|d MMMM yyyy|"
                                    "ddd d MMM yyyy";
// no translation: letters of formats
constexpr const char* TimeFormats = "HH:mm|HH:mm:ss|h:mm ap";

// One text on each line of the editor: line breaks within a text are written as "\n".
QString toLine(QString text)
{
    return text.replace(u'\\', u"\\\\"_s).replace(u'\n', u"\\n"_s);
}

QString fromLine(const QString& line)
{
    QString text;
    for (qsizetype at = 0; at < line.size(); ++at) {
        const QChar next = at + 1 < line.size() ? line.at(at + 1) : QChar();
        if (line.at(at) == u'\\' && (next == u'n' || next == u'\\')) {
            text += next == u'n' ? QChar(u'\n') : next;
            ++at;
        } else {
            text += line.at(at);
        }
    }
    return text;
}

QString toLines(const QStringList& texts)
{
    QStringList lines;
    for (const QString& text : texts) {
        lines.append(toLine(text));
    }
    return lines.join(u'\n');
}

QStringList fromLines(const QString& lines)
{
    QStringList texts;
    if (!lines.isEmpty()) {
        for (const QString& line : lines.split(u'\n')) {
            texts.append(fromLine(line));
        }
    }
    return texts;
}

} // namespace

SourceDialog::SourceDialog(const workbench::datasources::SourceValues& source, QWidget* parent)
    : QDialog(parent)
    , m_source(source)
    , m_examples(new QLabel(this))
{
    auto* form = new QFormLayout;
    if (source.kind == SequenceSource::Kind) {
        addCounter(*form);
    } else if (source.kind == SystemSource::Kind) {
        addClock(*form);
    } else {
        addList(*form);
    }
    m_examples->setTextFormat(Qt::PlainText);
    m_examples->setMinimumHeight(fontMetrics().height() * 2);
    setMinimumWidth(fontMetrics().averageCharWidth() * 70);
    m_examples->setWordWrap(true);
    form->addRow(tr("Shows"), m_examples);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &SourceDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SourceDialog::reject);
    showExamples();
}

bool SourceDialog::canEdit(const QString& kind)
{
    return kind == SequenceSource::Kind || kind == SystemSource::Kind ||
           kind == TextListSource::Kind;
}

workbench::datasources::SourceValues SourceDialog::source() const
{
    return m_source;
}

void SourceDialog::addCounter(QFormLayout& form)
{
    setWindowTitle(tr("Counter"));
    addNumber(form, u"Start"_s, tr("&Start"), LeastNumber, MostNumber);
    addNumber(form, u"End"_s, tr("&End"), LeastNumber, MostNumber);
    addNumber(form, u"Step"_s, tr("S&tep"), LeastNumber, MostNumber);
    addNumber(form, u"ZeroPad"_s, tr("&Digits, with zeros in front"), 0,
              SequenceSource::MaximumZeroPad);
    addText(form, u"Prefix"_s, tr("Text &before"));
    addText(form, u"Suffix"_s, tr("Text &after"));
}

void SourceDialog::addClock(QFormLayout& form)
{
    setWindowTitle(tr("Date and Time"));
    addFormat(form, u"DateFormat"_s, tr("&Date"), DateFormats);
    addFormat(form, u"TimeFormat"_s, tr("&Time"), TimeFormats);
}

void SourceDialog::addList(QFormLayout& form)
{
    setWindowTitle(tr("List of Texts"));
    auto* edit = new QPlainTextEdit(this);
    edit->setAccessibleName(tr("Texts, one on each line"));
    edit->setTabChangesFocus(true);
    edit->setPlainText(toLines(m_source.properties.value(u"TextList"_s).toStringList()));
    form.addRow(tr("&Texts"), edit);
    form.addRow(QString(),
                new QLabel(tr("One text on each line; \\n is a line break in a text."), this));
    connect(edit, &QPlainTextEdit::textChanged, this,
            [this, edit] { set(u"TextList"_s, fromLines(edit->toPlainText())); });
}

void SourceDialog::addText(QFormLayout& form, const QString& property, const QString& name)
{
    auto* edit = new QLineEdit(m_source.properties.value(property).toString(), this);
    edit->setAccessibleName(QString(name).remove(u'&'));
    form.addRow(name, edit);
    connect(edit, &QLineEdit::textChanged, this,
            [this, property](const QString& text) { set(property, text); });
}

void SourceDialog::addNumber(QFormLayout& form, const QString& property, const QString& name,
                             int least, int most)
{
    auto* box = new QSpinBox(this);
    box->setRange(least, most);
    box->setValue(m_source.properties.value(property).toInt());
    box->setAccessibleName(QString(name).remove(u'&'));
    form.addRow(name, box);
    connect(box, &QSpinBox::valueChanged, this,
            [this, property](int value) { set(property, value); });
}

void SourceDialog::addFormat(QFormLayout& form, const QString& property, const QString& name,
                             const char* formats)
{
    auto* box = new QComboBox(this);
    box->setEditable(true);
    box->addItem(QString());
    box->addItems(QString::fromLatin1(formats).split(u'|'));
    box->setEditText(m_source.properties.value(property).toString());
    box->setAccessibleName(QString(name).remove(u'&'));
    form.addRow(name, box);
    connect(box, &QComboBox::editTextChanged, this,
            [this, property](const QString& text) { set(property, text); });
}

void SourceDialog::set(const QString& property, const QVariant& value)
{
    m_source.properties.insert(property, value);
    showExamples();
}

void SourceDialog::showExamples()
{
    DatasourceController sources;
    if (!sources.setValues({m_source})) {
        return;
    }
    const qint64 count = sources.source(m_source.id)->recordCount();
    QStringList examples;
    for (qint64 record = 0; record < std::min<qint64>(count, 3); ++record) {
        examples.append(sources.recordText(m_source.id, record).value_or(QString()));
    }
    if (count > 3) {
        examples.append(u"…"_s);
        examples.append(sources.recordText(m_source.id, count - 1).value_or(QString()));
    }
    const QString text = examples.join(u", "_s).left(ExampleLength);
    m_examples->setText(count > 1 ? tr("%1 (%2 records)").arg(text, QLocale().toString(count))
                                  : text);
}

} // namespace window
