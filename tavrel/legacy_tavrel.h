#pragma once

#include <QObject>
#include <QString>

class DatasourceController;
class QWidget;
class TalCanvasModel;

class LegacyTavrel : public QObject
{
    Q_OBJECT

public:
    LegacyTavrel(TalCanvasModel* canvasModel, DatasourceController* datasourceController);

    [[nodiscard]] bool importLabelFromFile(const QString& fileName);

Q_SIGNALS:
    void popupShowSignal(QWidget* popup);
    void popupHideSignal();

private:
    TalCanvasModel* m_canvasModel;
    DatasourceController* m_datasourceController;
};
