#pragma once

#include "journal/journal.h"

#include <QObject>

using namespace Qt::Literals::StringLiterals;

class QWidget;

/// Replaces the reader of the same name and interface. Every import shows a message and
/// hides it again.
class LegacyTavrel : public QObject
{
    Q_OBJECT

public:
    LegacyTavrel(TalCanvasModel* canvasModel, DatasourceController* datasourceController)
    {
        journal().readerMade("tavrel", canvasModel, datasourceController);
    }
    ~LegacyTavrel() override { journal().events.append(u"tavrel destroyed"_s); }
    bool importLabelFromFile(const QString& fileName)
    {
        Q_EMIT popupShowSignal(nullptr);
        Q_EMIT popupHideSignal();
        return journal().readerCalled("tavrel", fileName);
    }

Q_SIGNALS:
    void popupShowSignal(QWidget* popup);
    void popupHideSignal();
};
