#include "main/forms/vsplitter.h"

#include <QMouseEvent>

VSplitterBar::VSplitterBar(QWidget* parent) : QFrame(parent) {
    setObjectName("VSplitter");
    setCursor(Qt::SplitHCursor);
    setFrameShape(QFrame::NoFrame);
}

void VSplitterBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) grab_ = int(event->position().x());
}

void VSplitterBar::mouseMoveEvent(QMouseEvent* event) {
    if (grab_ < 0) return;
    int left = x() + int(event->position().x()) - grab_;
    if (left < 0) left = 0;
    move(left, y());
    emit moved(left);
}

void VSplitterBar::mouseReleaseEvent(QMouseEvent*) { grab_ = -1; }
