// SPDX-License-Identifier: MIT
#include "desktop/uiIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <cmath>

namespace vk {

namespace {

// All icons are drawn in a field of 24 by 24.
struct Pen {
  QPainter& painter;
  QColor ink;
  QColor accent;

  void line(qreal x1, qreal y1, qreal x2, qreal y2) { painter.drawLine(QPointF(x1, y1), {x2, y2}); }
  void ink1(qreal width = 1.6) { painter.setPen(QPen(ink, width, Qt::SolidLine, Qt::RoundCap)); }
  void colour(const QColor& c, qreal width = 1.8) {
    painter.setPen(QPen(c, width, Qt::SolidLine, Qt::RoundCap));
  }
};

void sheet(Pen& p) {
  p.ink1();
  p.painter.drawRoundedRect(QRectF(5, 2.5, 14, 19), 1.5, 1.5);
}

void wave(Pen& p, qreal left, qreal right, qreal middle, qreal height) {
  QPainterPath path(QPointF(left, middle));
  const int steps = 24;
  for (int i = 1; i <= steps; ++i) {
    const qreal t = qreal(i) / steps;
    path.lineTo(left + (right - left) * t, middle - height * std::sin(t * 4 * 3.14159265));
  }
  p.painter.drawPath(path);
}

void drawOpenData(Pen& p) {
  p.ink1();
  p.painter.drawPolyline(QPolygonF({{3, 19}, {3, 5}, {9, 5}, {11, 8}, {20, 8}, {20, 11}}));
  p.painter.drawPolygon(QPolygonF({{3, 19}, {6.5, 11}, {22.5, 11}, {19, 19}}));
  p.colour(p.accent);
  wave(p, 8.5, 18, 15, 2);
}

void drawCsv(Pen& p) {
  sheet(p);
  p.colour(p.accent, 1.4);
  for (int y = 0; y < 3; ++y) p.line(8, 8 + 4 * y, 16, 8 + 4 * y);
  p.line(12, 5.5, 12, 18.5);
}

void drawReadUsb(Pen& p) {
  p.ink1();
  p.painter.drawRoundedRect(QRectF(3, 13, 18, 8), 1.5, 1.5);
  p.line(6.5, 17, 9, 17);
  p.colour(p.accent, 2.2);
  p.line(12, 2.5, 12, 10);
  p.line(12, 10, 8.5, 6.8);
  p.line(12, 10, 15.5, 6.8);
}

void drawMeasure(Pen& p) {
  p.ink1();
  for (int i = 0; i < 3; ++i) p.line(3.5, 6 + 6 * i, 20.5, 6 + 6 * i);
  p.painter.setBrush(p.accent);
  p.colour(p.accent, 1);
  const qreal knob[] = {8, 15.5, 11};
  for (int i = 0; i < 3; ++i) p.painter.drawEllipse(QPointF(knob[i], 6 + 6 * i), 2.4, 2.4);
}

void drawMonitor(Pen& p) {
  p.ink1();
  p.painter.drawRoundedRect(QRectF(2.5, 4, 19, 13), 1.5, 1.5);
  p.line(8, 20.5, 16, 20.5);
  p.line(12, 17, 12, 20.5);
  p.colour(p.accent);
  wave(p, 5, 19, 10.5, 3.5);
}

void drawBalance(Pen& p) {
  p.ink1();
  p.line(12, 3, 12, 20.5);
  p.line(7.5, 20.5, 16.5, 20.5);
  p.line(4.5, 6.5, 19.5, 6.5);
  p.colour(p.accent);
  p.painter.drawArc(QRectF(1.5, 8.5, 6.5, 7), 180 * 16, 180 * 16);
  p.painter.drawArc(QRectF(16, 8.5, 6.5, 7), 180 * 16, 180 * 16);
  p.ink1(1.2);
  p.line(4.75, 6.5, 1.5, 12);
  p.line(4.75, 6.5, 8, 12);
  p.line(19.25, 6.5, 16, 12);
  p.line(19.25, 6.5, 22.5, 12);
}

void drawCal(Pen& p) {
  p.ink1(1.2);
  p.line(2.5, 20, 21.5, 20);
  p.line(3, 3.5, 3, 20);
  p.colour(p.accent, 2);
  p.painter.drawPolyline(
      QPolygonF({{5, 17}, {8.5, 17}, {8.5, 12}, {13, 12}, {13, 7}, {17.5, 7}, {17.5, 4}, {21, 4}}));
}

void drawCheck(Pen& p) {
  p.ink1();
  p.painter.drawEllipse(QPointF(12, 12), 9.2, 9.2);
  p.colour(p.accent, 2.4);
  p.painter.drawPolyline(QPolygonF({{7.5, 12.5}, {11, 16}, {17, 8.5}}));
}

void drawList(Pen& p) {
  sheet(p);
  p.ink1(1.3);
  for (int i = 0; i < 4; ++i) p.line(11, 6.5 + 3.7 * i, 16.5, 6.5 + 3.7 * i);
  p.colour(p.accent, 2);
  for (int i = 0; i < 4; ++i) p.line(7.8, 6.5 + 3.7 * i, 8.3, 6.5 + 3.7 * i);
}

void drawCardInit(Pen& p) {
  p.ink1();
  p.painter.drawPolygon(QPolygonF({{4, 3}, {16, 3}, {20, 7}, {20, 21}, {4, 21}}));
  p.colour(p.accent, 2);
  p.line(9, 10.5, 15, 16.5);
  p.line(15, 10.5, 9, 16.5);
}

void drawReconnect(Pen& p) {
  p.colour(p.accent, 2);
  p.painter.drawArc(QRectF(4, 4, 16, 16), 30 * 16, 150 * 16);
  p.painter.drawArc(QRectF(4, 4, 16, 16), 210 * 16, 150 * 16);
  p.painter.drawPolyline(QPolygonF({{19.5, 2.8}, {19.3, 8.2}, {14.2, 7.2}}));
  p.painter.drawPolyline(QPolygonF({{4.5, 21.2}, {4.7, 15.8}, {9.8, 16.8}}));
}

void drawStart(Pen& p) {
  p.painter.setPen(Qt::NoPen);
  p.painter.setBrush(QColor(0x2E, 0xA0, 0x43));
  p.painter.drawPolygon(QPolygonF({{6, 3.5}, {21, 12}, {6, 20.5}}));
}

void drawStop(Pen& p) {
  p.painter.setPen(Qt::NoPen);
  p.painter.setBrush(QColor(0xD1, 0x3B, 0x30));
  p.painter.drawRoundedRect(QRectF(5, 5, 14, 14), 1.5, 1.5);
}

void drawTrigger(Pen& p) {
  p.painter.setPen(Qt::NoPen);
  p.painter.setBrush(QColor(0xE0, 0x9A, 0x12));
  p.painter.drawPolygon(
      QPolygonF({{13.5, 2}, {5, 13.5}, {11, 13.5}, {9.5, 22}, {19, 9.5}, {12.8, 9.5}}));
}

void drawProgram(Pen& p) {
  p.painter.setPen(Qt::NoPen);
  p.painter.setBrush(QColor(0x1F, 0x3A, 0x5F));
  p.painter.drawRoundedRect(QRectF(1, 1, 22, 22), 4, 4);
  p.colour(QColor(0x8F, 0xE3, 0x88), 2);
  wave(p, 4, 20, 12, 6);
}

using Drawer = void (*)(Pen&);

Drawer drawerOf(UiIcon icon) {
  static constexpr Drawer kDrawers[] = {drawOpenData, drawCsv,      drawReadUsb,   drawMeasure,
                                        drawMonitor,  drawBalance,  drawCal,       drawCheck,
                                        drawList,     drawCardInit, drawReconnect, drawStart,
                                        drawStop,     drawTrigger,  drawProgram};
  return kDrawers[static_cast<int>(icon)];
}

class Engine : public QIconEngine {
 public:
  explicit Engine(Drawer drawer) : drawer_(drawer) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    Pen pen{*painter, palette.color(QPalette::WindowText),
            dark ? QColor(0x5A, 0xB0, 0xFF) : QColor(0x0B, 0x62, 0xB5)};
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mode == QIcon::Disabled) painter->setOpacity(0.35);
    const qreal side = qMin(rect.width(), rect.height());
    painter->translate(rect.center() + QPointF(0.5 - side / 2 + 0.5, 0.5 - side / 2 + 0.5));
    painter->scale(side / 24, side / 24);
    painter->setBrush(Qt::NoBrush);
    drawer_(pen);
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }
  QIconEngine* clone() const override { return new Engine(drawer_); }

 private:
  Drawer drawer_;
};

}  // namespace

QIcon uiIcon(UiIcon icon) {
  return QIcon(new Engine(drawerOf(icon)));
}

QPixmap lampPixmap(const QColor& colour, int size, qreal ratio) {
  QPixmap pixmap(QSize(size, size) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour.darker(190), 1));
  painter.setBrush(colour);
  painter.drawEllipse(QRectF(1, 1, size - 2, size - 2));
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(255, 255, 255, 150));
  painter.drawEllipse(QRectF(size * 0.25, size * 0.18, size * 0.35, size * 0.3));
  return pixmap;
}

}  // namespace vk
