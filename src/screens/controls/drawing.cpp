#include "screens/controls/drawing.h"

#include <QPainter>

namespace controls {

Drawing::Drawing(const QString& name, const QString& file) : m_drawing(file)
{
    setObjectName(name);
    m_drawing.setAspectRatioMode(Qt::KeepAspectRatio);
}

void Drawing::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_drawing.render(&painter, rect());
}

}  // namespace controls
