#pragma once

#include <QImage>
#include <QWidget>

class QLabel;
class QSlider;
class QStackedWidget;

namespace window {

/// Two pictures of a label at the same place, divided by a vertical line.
class ComparisonView final : public QWidget
{
    Q_OBJECT

public:
    explicit ComparisonView(QWidget* parent = nullptr);

    void setPictures(const QImage& original, const QImage& label);
    /// The share of the width that shows the original, from 0 to 1.
    void setShare(double share);
    /// Where the pictures are painted.
    [[nodiscard]] QRectF pictureRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_original;
    QImage m_label;
    double m_share = 0.5;
};

/// The original document's own preview next to the label, with a slider between them.
class ComparisonPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit ComparisonPanel(QWidget* parent = nullptr);

    /// @param original null if the document has no preview
    void setPictures(const QImage& original, const QImage& label);
    [[nodiscard]] bool hasOriginal() const { return m_hasOriginal; }
    [[nodiscard]] ComparisonView& view() { return *m_view; }
    [[nodiscard]] QSlider& slider() { return *m_slider; }

private:
    bool m_hasOriginal = false;
    QLabel* m_none;
    ComparisonView* m_view;
    QSlider* m_slider;
    QStackedWidget* m_stack;
};

} // namespace window
