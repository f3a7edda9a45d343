// Implements the question for dark colours, and the colours.
#include "host/sheet/linux/desktopColours.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVariant>

namespace {

constexpr int longestAnswer = 200;  // milliseconds; the sheet is to be there at once
constexpr unsigned prefersDark = 1;
constexpr int middleLightness = 128;  // of [0, 255]

// Portals of different age wrap the value once or twice.
QVariant unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>()) {
    value = value.value<QDBusVariant>().variant();
  }
  return value;
}

}  // namespace

bool desktopWantsDark(const QDBusConnection& bus) {
  if (!bus.isConnected()) {
    return false;
  }
  QDBusMessage question =
      QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                     "org.freedesktop.portal.Settings", "Read");
  question.setAutoStartService(false);
  question << QString("org.freedesktop.appearance") << QString("color-scheme");
  const QDBusMessage answer = bus.call(question, QDBus::Block, longestAnswer);
  return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty() &&
         unwrapped(answer.arguments().first()).toUInt() == prefersDark;
}

QPalette darkPalette() {
  const QColor text(238, 238, 238);
  const QColor faintText(128, 128, 128);
  QPalette palette(QColor(53, 53, 53), QColor(42, 42, 42));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                          QPalette::BrightText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, faintText);
  }
  palette.setColor(QPalette::Base, QColor(30, 30, 30));
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(42, 42, 42));
  palette.setColor(QPalette::ToolTipBase, QColor(53, 53, 53));
  palette.setColor(QPalette::PlaceholderText, faintText);
  palette.setColor(QPalette::Highlight, QColor(48, 110, 180));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(120, 180, 255));
  palette.setColor(QPalette::LinkVisited, QColor(190, 160, 255));
  return palette;
}

void followDesktopColours() {
  const bool isLight = QApplication::palette().color(QPalette::Window).lightness() > middleLightness;
  if (isLight && desktopWantsDark(QDBusConnection::sessionBus())) {
    QApplication::setPalette(darkPalette());
  }
}
