#pragma once

#include "workbench/datasources/datasource_controller.h"

#include <QDialog>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QSpinBox;

namespace window {

/// Edits a counter, a date and time, or a list of texts, with examples of what it shows.
class SourceDialog final : public QDialog
{
    Q_OBJECT

public:
    SourceDialog(const workbench::datasources::SourceValues& source, QWidget* parent);

    /// Whether sources of this kind can be edited here.
    [[nodiscard]] static bool canEdit(const QString& kind);

    /// The source as edited.
    [[nodiscard]] workbench::datasources::SourceValues source() const;

private:
    void addCounter(QFormLayout& form);
    void addClock(QFormLayout& form);
    void addList(QFormLayout& form);
    void addText(QFormLayout& form, const QString& property, const QString& name);
    void addNumber(QFormLayout& form, const QString& property, const QString& name, int least,
                   int most);
    void addFormat(QFormLayout& form, const QString& property, const QString& name,
                   const char* formats);
    void set(const QString& property, const QVariant& value);
    void showExamples();

    workbench::datasources::SourceValues m_source;
    QLabel* m_examples;
};

} // namespace window
