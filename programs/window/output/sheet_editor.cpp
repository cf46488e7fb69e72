#include "window/output/sheet_editor.h"

#include "printing/sheet_json.h"
#include "printing/sheet_presets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QJsonDocument>
#include <QLabel>
#include <QLocale>
#include <QSettings>
#include <QSpinBox>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

using printing::Sheet;

constexpr QLatin1String OwnSheetKey("print/sheet");
// Data of the first entry of the list, and of the last one.
constexpr QLatin1String LabelPaper("");
constexpr QLatin1String OwnSheet("*");

QString lengthText(double length)
{
    return QLocale().toString(std::round(length * 100.0) / 100.0, 'g', 6);
}

QString presetText(const Sheet& sheet)
{
    return SheetEditor::tr("%1 – %2 × %3 labels of %4 × %5 mm")
        .arg(sheet.names.join(u", "_s))
        .arg(sheet.columns)
        .arg(sheet.rows)
        .arg(lengthText(sheet.label.width()), lengthText(sheet.label.height()));
}

std::optional<Sheet> storedSheet()
{
    const QByteArray text = QSettings().value(OwnSheetKey).toString().toUtf8();
    return printing::sheetFromJson(QJsonDocument::fromJson(text).object());
}

QHBoxLayout* pairOf(QWidget* first, const QString& between, QWidget* second)
{
    auto* row = new QHBoxLayout;
    row->addWidget(first, 1);
    row->addWidget(new QLabel(between, first->parentWidget()));
    row->addWidget(second, 1);
    return row;
}

} // namespace

SheetEditor::SheetEditor(const QSizeF& label, QWidget* parent)
    : QWidget(parent)
    , m_label(label)
    , m_own(storedSheet().value_or(printing::plainSheet(u"A4"_s, label)))
    , m_paper(new QComboBox(this))
    , m_columns(addCount(tr("Columns"), printing::MaximumGrid))
    , m_rows(addCount(tr("Rows"), printing::MaximumGrid))
    , m_width(addLength(tr("Width of a label")))
    , m_height(addLength(tr("Height of a label")))
    , m_left(addLength(tr("Left margin")))
    , m_top(addLength(tr("Top margin")))
    , m_columnGap(addLength(tr("Gap between columns")))
    , m_rowGap(addLength(tr("Gap between rows")))
    , m_first(addCount(tr("First free position"), 1))
    , m_cropMarks(new QCheckBox(tr("Crop &marks"), this))
    , m_measures(new QWidget(this))
{
    m_own.names = {OwnSheet};
    m_paper->setAccessibleName(tr("Paper"));
    m_paper->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_paper->setMinimumContentsLength(30);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("P&aper"), m_paper);
    auto* measures = new QFormLayout(m_measures);
    measures->setContentsMargins(0, 0, 0, 0);
    addMeasures(*measures);
    form->addRow(m_measures);
    fillPapers();
    connect(m_paper, &QComboBox::currentIndexChanged, this, &SheetEditor::selectPaper);
    connect(m_first, &QSpinBox::valueChanged, this, &SheetEditor::changed);
    connect(m_cropMarks, &QCheckBox::toggled, this, &SheetEditor::changed);
    for (QSpinBox* box : {m_columns, m_rows}) {
        connect(box, &QSpinBox::valueChanged, this, &SheetEditor::editMeasures);
    }
    for (QDoubleSpinBox* box : {m_width, m_height, m_left, m_top, m_columnGap, m_rowGap}) {
        connect(box, &QDoubleSpinBox::valueChanged, this, &SheetEditor::editMeasures);
    }
    selectPaper();
}

void SheetEditor::fillPapers()
{
    m_paper->addItem(tr("The label's own size (%1 × %2 mm)")
                         .arg(lengthText(m_label.width()), lengthText(m_label.height())),
                     LabelPaper);
    for (const QString& paper : printing::paperNames()) {
        m_paper->addItem(tr("%1, as many labels as fit").arg(paper), paper);
    }
    for (const Sheet& sheet : printing::sheetPresets()) {
        m_paper->addItem(presetText(sheet), sheet.name());
    }
    m_paper->addItem(tr("Sheet with the measures below"), OwnSheet);
}

QDoubleSpinBox* SheetEditor::addLength(const QString& name)
{
    auto* box = new QDoubleSpinBox(this);
    box->setRange(0.0, printing::MaximumPaperSide);
    box->setDecimals(2);
    box->setSuffix(tr(" mm"));
    box->setAccessibleName(name);
    return box;
}

QSpinBox* SheetEditor::addCount(const QString& name, int most)
{
    auto* box = new QSpinBox(this);
    box->setRange(1, most);
    box->setAccessibleName(name);
    return box;
}

void SheetEditor::addMeasures(QFormLayout& form)
{
    form.addRow(tr("Columns, rows"), pairOf(m_columns, u"×"_s, m_rows));
    form.addRow(tr("Label"), pairOf(m_width, u"×"_s, m_height));
    form.addRow(tr("Left, top margin"), pairOf(m_left, u","_s, m_top));
    form.addRow(tr("Gaps"), pairOf(m_columnGap, u","_s, m_rowGap));
    auto* first = new QHBoxLayout;
    first->addWidget(m_first);
    first->addWidget(m_cropMarks);
    auto* caption = new QLabel(tr("&First free position"), this);
    caption->setBuddy(m_first);
    form.addRow(caption, first);
}

void SheetEditor::selectPaper()
{
    const QString name = m_paper->currentData().toString();
    const std::optional<Sheet> sheet =
        name == OwnSheet ? std::optional(m_own) : printing::sheetOfName(name, m_label);
    m_measures->setVisible(sheet.has_value());
    if (sheet) {
        showMeasures(*sheet);
    }
    Q_EMIT changed();
}

void SheetEditor::showMeasures(const Sheet& sheet)
{
    const QSignalBlocker silence(this);
    const QList<std::pair<QSpinBox*, int>> counts{{m_columns, sheet.columns}, {m_rows, sheet.rows}};
    for (const auto& [box, value] : counts) {
        const QSignalBlocker boxSilence(box);
        box->setValue(value);
    }
    const QSizeF gap = sheet.pitch - sheet.label;
    const QList<std::pair<QDoubleSpinBox*, double>> lengths{
        {m_width, sheet.label.width()}, {m_height, sheet.label.height()}, {m_left, sheet.start.x()},
        {m_top, sheet.start.y()},       {m_columnGap, gap.width()},       {m_rowGap, gap.height()}};
    for (const auto& [box, value] : lengths) {
        const QSignalBlocker boxSilence(box);
        box->setValue(value);
    }
    m_own.paper = sheet.paper;
    m_own.paperSize = sheet.paperSize;
    m_first->setMaximum(std::max(sheet.positions(), 1));
}

// The measures of a known sheet that are changed become the user's own sheet.
void SheetEditor::editMeasures()
{
    m_own = editedSheet();
    m_first->setMaximum(std::max(m_own.positions(), 1));
    m_paper->setCurrentIndex(m_paper->findData(OwnSheet));
    Q_EMIT changed();
}

Sheet SheetEditor::editedSheet() const
{
    Sheet sheet = m_own;
    sheet.columns = m_columns->value();
    sheet.rows = m_rows->value();
    sheet.label = {m_width->value(), m_height->value()};
    sheet.start = {m_left->value(), m_top->value()};
    sheet.pitch = sheet.label + QSizeF(m_columnGap->value(), m_rowGap->value());
    return sheet;
}

std::optional<Sheet> SheetEditor::sheetFor(const QSizeF& label) const
{
    const QString name = m_paper->currentData().toString();
    return name == OwnSheet ? std::optional(m_own) : printing::sheetOfName(name, label);
}

QString SheetEditor::problem() const
{
    const std::optional<Sheet> sheet = sheetFor(m_label);
    return sheet ? problemOf(*sheet) : QString();
}

int SheetEditor::firstPosition() const
{
    return m_first->value() - 1;
}

void SheetEditor::setFirstPosition(int position)
{
    m_first->setValue(position + 1);
}

bool SheetEditor::cropMarks() const
{
    return m_cropMarks->isChecked();
}

void SheetEditor::selectSheet(const QString& name)
{
    m_paper->setCurrentIndex(m_paper->findData(name));
}

void SheetEditor::store() const
{
    if (m_paper->currentData().toString() == OwnSheet && problem().isEmpty()) {
        const QByteArray text =
            QJsonDocument(printing::toJson(m_own)).toJson(QJsonDocument::Compact);
        QSettings().setValue(OwnSheetKey, QString::fromUtf8(text));
    }
}

} // namespace window
