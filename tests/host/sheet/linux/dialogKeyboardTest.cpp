// Tests how the keyboard reaches what is on the dialog.
#include <QLabel>
#include <QTabBar>
#include <algorithm>
#include <set>

#include <gmock/gmock.h>

#include "host/sheet/linux/dialogFixture.h"

using testing::ElementsAre;

namespace {

// The letters that Alt presses, of all that is marked on the active page and around it.
std::vector<QChar> acceleratorsOf(const QDialog& dialog) {
  std::vector<QString> texts;
  const auto& tabs = *dialog.findChild<QTabBar*>();
  for (int i = 0; i < tabs.count(); ++i) {
    texts.push_back(tabs.tabText(i));
  }
  for (const auto* button : dialog.findChildren<QAbstractButton*>()) {
    if (button->isVisible()) {
      texts.push_back(button->text());
    }
  }
  for (const auto* label : dialog.findChildren<QLabel*>()) {
    if (label->isVisible() && label->buddy() != nullptr) {
      texts.push_back(label->text());
    }
  }
  std::vector<QChar> letters;
  for (const QString& text : texts) {
    const auto position = text.indexOf('&');
    if (position >= 0) {
      letters.push_back(text[position + 1].toLower());
    }
  }
  return letters;
}

TEST_F(DialogTest, NoTwoAcceleratorsOfAPageMeetAndNoControlIsWithout) {
  for (int position = 0; position < pageCount; ++position) {
    show(position);
    const std::vector<QChar> letters = acceleratorsOf(*dialog);
    const std::set<QChar> different(letters.begin(), letters.end());
    EXPECT_EQ(different.size(), letters.size()) << position;
    for (const auto* control : dialog->findChildren<QAbstractButton*>()) {
      if (control->isVisible() && !control->inherits("QToolButton")) {
        EXPECT_TRUE(control->text().contains('&')) << control->text().toStdString();
      }
    }
  }
}

TEST_F(DialogTest, TheHintOfTheMessagesLabelIsWithoutAccelerator) {
  show(messagesPage);
  const auto labels = page()->findChildren<QLabel*>();
  const auto label = std::ranges::find(labels, &message(), &QLabel::buddy);
  ASSERT_NE(label, labels.end());
  EXPECT_EQ((*label)->text(), "M&essage:\n(Press CTRL + ENTER for a new line)");
  press(*dialog, Qt::Key_E, Qt::AltModifier);
  EXPECT_TRUE(message().hasFocus());
}

TEST_F(DialogTest, WhoConfirmsAtOnceGetsTheControlThatIsStillShownPressed) {
  show(backgroundPage);
  press(*dialog, Qt::Key_L, Qt::AltModifier);
  EXPECT_FALSE(button(controlIds::black).isChecked()) << "pressed, and not yet changed";
  press(*dialog, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
  EXPECT_EQ(inFile("background"), "0");
}

TEST_F(DialogTest, AcceleratorsPress) {
  show();
  press(*dialog, Qt::Key_Q, Qt::AltModifier);
  EXPECT_EQ(tabs().currentIndex(), quotesPage);
  press(*dialog, Qt::Key_W, Qt::AltModifier);
  // A button stays down for a moment, to be seen.
  EXPECT_TRUE(QTest::qWaitFor([this] { return button(controlIds::wisdom).isChecked(); }));
  press(*dialog, Qt::Key_O, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
  EXPECT_EQ(inFile("showQuotes_Wisdom"), "yes");
}

TEST_F(DialogTest, TheTabulatorGoesFromTheTabsThroughThePageToTheButtons) {
  show(soundsPage);
  tabs().tabBar()->setFocus();
  std::vector<std::string> stops;
  for (int i = 0; i < 5; ++i) {
    press(*dialog->focusWidget(), Qt::Key_Tab);
    stops.push_back(textOf(*dialog->focusWidget()));
  }
  EXPECT_THAT(stops, ElementsAre("The sound of silence", "Cookoo every hour (Rooster in the mornings)", "OK",
                                 "Cancel", ""));
  EXPECT_EQ(dialog->focusWidget(), tabs().tabBar());
}

TEST_F(DialogTest, ArrowsGoFromRadioButtonToRadioButton) {
  show(backgroundPage);
  button(controlIds::starrySky).setFocus();
  press(button(controlIds::starrySky), Qt::Key_Up);
  EXPECT_TRUE(button(controlIds::gradientBlue).isChecked());
  ok();
  EXPECT_EQ(inFile("background"), "2");
}

}  // namespace
