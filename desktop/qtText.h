// SPDX-License-Identifier: MIT
// Texts and names between the logic (bytes) and Qt, and small helpers for building forms.
#pragma once

#include <QFont>
#include <QLocale>
#include <QString>
#include <QWidget>
#include <string>
#include <string_view>

namespace vk {

/// UTF-8, or Latin-1 where the bytes are not valid UTF-8, so that a foreign text is always shown.
QString toQt(std::string_view text);
std::string fromQt(const QString& text);

/// Element i of a control array: "cmdStart(1)".
QString elementName(const char* name, int index);

/// Gives an object its control name. The name is a public interface: tests, scripts and
/// accessibility tools find controls by it.
template <typename Object>
Object* named(Object* object, const QString& name) {
  object->setObjectName(name);
  return object;
}

/// As named(), with the text that a screen reader speaks.
template <typename Widget>
Widget* named(Widget* widget, const QString& name, const QString& spoken) {
  widget->setObjectName(name);
  widget->setAccessibleName(spoken);
  return widget;
}

/// The base font in the largest size in which the text has room, if only a pixel.
QFont fittingFont(const QFont& base, const QString& text, const QSize& room);

/// Puts a window in the middle of the screen it is on.
void centreOnScreen(QWidget& window);

/// Repaints a widget now, without letting other events run.
void showNow(QWidget& widget);

}  // namespace vk
