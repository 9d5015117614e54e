#pragma once
#include <QSvgRenderer>
#include <QWidget>

namespace controls {

/// A vector drawing, scaled to the widget without distortion; on paper it stays a vector drawing.
class Drawing : public QWidget {
public:
    Drawing(const QString& name, const QString& file);

    QSize sizeHint() const override { return m_drawing.defaultSize(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer m_drawing;
};

}  // namespace controls
