// Tests what the dialog shows, and what it tells a screen reader.
#include <QAccessible>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <set>

#include <gmock/gmock.h>

#include "host/sheet/aboutText.h"
#include "host/sheet/linux/desktopColours.h"
#include "host/sheet/linux/dialogFixture.h"
#include "support/fileSystem.h"

using testing::Contains;
using testing::ElementsAre;

namespace {

TEST_F(DialogTest, HasItsTitleItsIconAndEightTabsInOrder) {
  show();
  EXPECT_EQ(dialog->windowTitle().toStdString(), "Lunara 5.4.1 ");
  EXPECT_THAT(dialog->windowIcon().availableSizes(), Contains(QSize(16, 16)));
  EXPECT_THAT(dialog->windowIcon().availableSizes(), Contains(QSize(256, 256)));
  std::vector<std::string> titles;
  for (int i = 0; i < tabs().count(); ++i) {
    titles.push_back(shownText(tabs().tabText(i)));
  }
  EXPECT_THAT(titles,
              ElementsAre("Moon", "Messages", "Background", "Sounds", "Quotes", "Power", "Startup", "About"));
}

TEST_F(DialogTest, HasOkAndCancelAndNoOtherButton) {
  show();
  const auto buttons = dialog->findChild<QDialogButtonBox*>()->buttons();
  ASSERT_EQ(buttons.size(), 2);
  std::set<std::string> texts;
  for (const auto* button : buttons) {
    texts.insert(textOf(*button));
  }
  EXPECT_THAT(texts, ElementsAre("Cancel", "OK"));
}

TEST_F(DialogTest, EveryPageHasTheControlsOfTheTableInTheirOrder) {
  for (int position = 0; position < pageCount; ++position) {
    show(position);
    int lastTop = -1;
    for (const SheetControl& wanted : sheetPages()[static_cast<std::size_t>(position)].controls) {
      if (wanted.kind != ControlKind::radioButton && wanted.kind != ControlKind::checkBox) {
        continue;
      }
      const QAbstractButton& found = button(wanted.id);
      EXPECT_EQ(textOf(found), wanted.text);
      EXPECT_EQ(found.inherits(wanted.kind == ControlKind::radioButton ? "QRadioButton" : "QCheckBox"), true);
      const int top = found.mapTo(page(), QPoint()).y();
      EXPECT_GT(top, lastTop) << wanted.text;
      lastTop = top;
    }
  }
}

TEST_F(DialogTest, EveryTextOfTheTableIsOnItsPage) {
  for (int position = 0; position < pageCount; ++position) {
    show(position);
    std::vector<std::string> texts;
    for (const auto* widget : page()->findChildren<QWidget*>()) {
      texts.push_back(textOf(*widget));
    }
    for (const SheetControl& wanted : sheetPages()[static_cast<std::size_t>(position)].controls) {
      const bool changes = wanted.id == controlIds::messagePosition || wanted.kind == ControlKind::link;
      if (!changes) {
        EXPECT_THAT(texts, Contains(wanted.text));
      }
    }
  }
}

TEST_F(DialogTest, EverythingThatTakesTheFocusHasANameForScreenReaders) {
  for (int position = 0; position < pageCount; ++position) {
    show(position);
    for (auto* widget : page()->findChildren<QWidget*>()) {
      if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_")) {
        continue;
      }
      QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
      ASSERT_NE(accessible, nullptr);
      EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << widget->objectName().toStdString();
      EXPECT_FALSE(accessible->text(QAccessible::Name).contains('&')) << widget->objectName().toStdString();
    }
  }
}

TEST_F(DialogTest, TheEditsAreNamedByTheirLabels) {
  show(messagesPage);
  EXPECT_EQ(message().accessibleName(), "Message");
  EXPECT_EQ(bottomLine().accessibleName(), "Bottom line");
}

TEST_F(DialogTest, AboutShowsItsTextWithAPathThatLooksLikeMarkup) {
  xplCloseSettings();
  xplFileSystemMini::redirectFolders(root() + "/<b>&amp");
  show(aboutPage);
  const auto& about = dynamic_cast<const QLabel&>(*page());
  EXPECT_TRUE(about.text().contains("<a href=\"" + QString::fromStdString(aboutAddress()) + "\">"));
  EXPECT_TRUE(about.text().contains("/&lt;b&gt;&amp;amp/"));
  EXPECT_TRUE(about.text().contains("<br><br>"));
  EXPECT_TRUE(about.openExternalLinks());
}

TEST_F(DialogTest, AllTabsAreInSight) {
  show();
  EXPECT_GE(tabs().tabBar()->width(), tabs().tabBar()->sizeHint().width());
  EXPECT_TRUE(tabs().rect().contains(tabs().tabBar()->tabRect(aboutPage)));
}

// No colour is the dialog's own, so that it is as dark as the desktop.
TEST_F(DialogTest, IsDarkOnADarkDesktop) {
  const QPalette before = QApplication::palette();
  QApplication::setPalette(darkPalette());
  for (int position = 0; position < pageCount; ++position) {
    show(position);
    const QImage picture = dialog->grab().toImage();
    int dark = 0;
    int light = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const int grey = qGray(picture.pixel(x, y));
        dark += grey < 100 ? 1 : 0;
        light += grey > 180 ? 1 : 0;
      }
    }
    const int pixels = picture.width() * picture.height();
    EXPECT_GT(dark, pixels * 8 / 10) << position;
    EXPECT_GT(light, 200) << "the texts of page " << position;
  }
  QApplication::setPalette(before);
}

}  // namespace
