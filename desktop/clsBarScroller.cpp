// SPDX-License-Identifier: MIT
#include "desktop/clsBarScroller.h"

#include <QScrollBar>

namespace vk {

clsBarScroller::clsBarScroller(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::NoFocus);
  setWidget(new QWidget);
}

void clsBarScroller::setBarSize(const QSize& size) {
  widget()->setFixedSize(size);
  fitHeight();
}

void clsBarScroller::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  fitHeight();
}

void clsBarScroller::fitHeight() {
  const bool narrow = width() < widget()->width();
  setFixedHeight(widget()->height() + (narrow ? horizontalScrollBar()->sizeHint().height() : 0));
}

}  // namespace vk
