// Tests the question for dark colours on a bus of the test's own, and that dark colours can be read.
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QThread>
#include <memory>

#include <gtest/gtest.h>

#include "host/sheet/linux/contrast.h"
#include "host/sheet/linux/desktopColours.h"

namespace {

// Answers each call with one value.
class Portal : public QDBusVirtualObject {
 public:
  explicit Portal(QVariant answer) : m_answer(std::move(answer)) {}
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    const bool isQuestion = message.member() == "Read" && message.arguments().value(1) == "color-scheme";
    connection.send(isQuestion ? message.createReply(m_answer)
                               : message.createErrorReply(QDBusError::InvalidArgs, ""));
    return true;
  }

 private:
  QVariant m_answer;
};

QVariant wrapped(unsigned value) {
  return QVariant::fromValue(QDBusVariant(value));
}

class DesktopColours : public testing::Test {
 protected:
  DesktopColours() {
    bus.start("dbus-daemon", {"--session", "--print-address", "--nofork", "--nopidfile"});
    EXPECT_TRUE(bus.waitForReadyRead()) << "dbus-daemon does not start";
    address = QString::fromUtf8(bus.readLine()).trimmed();
  }
  ~DesktopColours() override {
    for (const char* name : {"asking", "answering"}) {
      QDBusConnection::disconnectFromBus(name);
    }
    bus.kill();
    bus.waitForFinished();
  }
  bool isDark() const { return desktopWantsDark(QDBusConnection::connectToBus(address, "asking")); }
  bool isDarkWhere(const QVariant& answer) {
    Portal portal(answer);
    QThread thread;
    portal.moveToThread(&thread);
    thread.start();
    QDBusConnection connection = QDBusConnection::connectToBus(address, "answering");
    connection.registerVirtualObject("/org/freedesktop/portal/desktop", &portal);
    EXPECT_TRUE(connection.registerService("org.freedesktop.portal.Desktop"));
    const bool dark = isDark();
    connection.unregisterObject("/org/freedesktop/portal/desktop");
    thread.quit();
    thread.wait();
    return dark;
  }

  QProcess bus;
  QString address;
};

TEST_F(DesktopColours, ThePortalAsksForDark) {
  EXPECT_TRUE(isDarkWhere(wrapped(1)));
}

TEST_F(DesktopColours, AnOlderPortalWrapsItsAnswerTwice) {
  EXPECT_TRUE(isDarkWhere(QVariant::fromValue(QDBusVariant(wrapped(1)))));
}

TEST_F(DesktopColours, ThePortalAsksForLightOrForNothing) {
  EXPECT_FALSE(isDarkWhere(wrapped(2)));
  EXPECT_FALSE(isDarkWhere(wrapped(0)));
}

TEST_F(DesktopColours, AnAnswerOfAnotherKindIsNone) {
  EXPECT_FALSE(isDarkWhere(QVariant::fromValue(QDBusVariant(QString("dark")))));
}

TEST_F(DesktopColours, WithoutAPortalItIsLight) {
  EXPECT_FALSE(isDark());
}

TEST_F(DesktopColours, WithoutABusItIsLight) {
  address = "unix:path=/nowhere";
  EXPECT_FALSE(isDark());
}

TEST(DarkPalette, CanBeRead) {
  const QPalette palette = darkPalette();
  for (const auto& [text, ground] : std::vector<std::pair<QPalette::ColorRole, QPalette::ColorRole>>{
           {QPalette::WindowText, QPalette::Window},
           {QPalette::Text, QPalette::Base},
           {QPalette::ButtonText, QPalette::Button},
           {QPalette::ToolTipText, QPalette::ToolTipBase},
           {QPalette::Link, QPalette::Window},
           {QPalette::LinkVisited, QPalette::Window},
           {QPalette::HighlightedText, QPalette::Highlight}}) {
    EXPECT_GE(contrast(palette.color(text), palette.color(ground)), readableContrast) << text;
  }
  EXPECT_LT(palette.color(QPalette::Window).lightness(), 64);
}

}  // namespace
