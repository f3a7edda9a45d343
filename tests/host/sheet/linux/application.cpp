// Gives the tests an application without a display.
#include <QApplication>
#include <memory>

#include <gtest/gtest.h>

namespace {

QtMessageHandler previousHandler = nullptr;

// The display that is none says at each window what it cannot do with it.
void passMessageOn(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (text != "This plugin does not support propagateSizeHints()") {
    previousHandler(type, context, text);
  }
}

class Application : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    previousHandler = qInstallMessageHandler(passMessageOn);
    m_application = std::make_unique<QApplication>(m_count, m_arguments);
  }
  void TearDown() override { m_application.reset(); }

 private:
  char m_name[11] = "test_sheet";
  char* m_arguments[2] = {m_name, nullptr};
  int m_count = 1;
  std::unique_ptr<QApplication> m_application;
};

const auto* const application = testing::AddGlobalTestEnvironment(new Application);

}  // namespace
