// Tests that every text of the dialog is whole and can be read, in fonts and sizes that desktops have.
#include <QFontDatabase>
#include <QGroupBox>
#include <QLabel>
#include <QProcess>
#include <QTabBar>
#include <map>

#include <gtest/gtest.h>

#include "host/sheet/linux/contrast.h"
#include "host/sheet/linux/desktopColours.h"
#include "host/sheet/linux/dialogFixture.h"

namespace {

constexpr int usualSize = 9;  // points

// Leaves the application's font and colours as they were.
class DialogFits : public DialogTest {
 protected:
  ~DialogFits() override {
    dialog.reset();
    QApplication::setFont(m_fontBefore);
    QApplication::setPalette(m_paletteBefore);
  }
  std::vector<QWidget*> shownWidgets() const {
    std::vector<QWidget*> shown;
    for (QWidget* widget : page()->findChildren<QWidget*>()) {
      if (widget->isVisible() && !widget->objectName().startsWith("qt_")) {
        shown.push_back(widget);
      }
    }
    if (qobject_cast<QLabel*>(page()) != nullptr) {
      shown.push_back(page());
    }
    return shown;
  }
  // That the page in sight shows all of everything that it has.
  void expectWhole() const {
    for (const QWidget* widget : shownWidgets()) {
      SCOPED_TRACE(textOf(*widget) + " (" + widget->metaObject()->className() + ")");
      const QRect place(widget->mapTo(page(), QPoint()), widget->size());
      EXPECT_TRUE(page()->rect().contains(place));
      expectTextFits(*widget);
    }
  }

 private:
  static void expectTextFits(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->wordWrap()) {
      EXPECT_GE(label->height(), label->heightForWidth(label->width()));
      return;
    }
    const auto* box = qobject_cast<const QGroupBox*>(&widget);
    if (box != nullptr) {
      EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->title()));
      EXPECT_GE(box->height(), box->minimumSizeHint().height());
    } else if (label != nullptr || qobject_cast<const QAbstractButton*>(&widget) != nullptr) {
      EXPECT_GE(widget.width(), widget.sizeHint().width());
      EXPECT_GE(widget.height(), widget.sizeHint().height());
    } else if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
      EXPECT_GE(widget.height(), widget.sizeHint().height());
    }
  }

  const QFont m_fontBefore = QApplication::font();
  const QPalette m_paletteBefore = QApplication::palette();
};

TEST_F(DialogFits, EveryTextIsWholeInEachFontAtOnceAndTwiceItsSize) {
  storeMessages({"one", "two"});
  int fonts = 0;
  for (const char* family : {"DejaVu Sans", "Liberation Sans"}) {
    if (!QFontDatabase::hasFamily(family)) {
      continue;
    }
    ++fonts;
    for (const int size : {usualSize, 2 * usualSize}) {
      SCOPED_TRACE(std::string(family) + " " + std::to_string(size));
      QApplication::setFont(QFont(family, size));
      for (int position = 0; position < pageCount; ++position) {
        SCOPED_TRACE(sheetPages()[static_cast<std::size_t>(position)].title);
        show(position);
        expectWhole();
        EXPECT_TRUE(tabs().rect().contains(tabs().tabBar()->tabRect(aboutPage)));
      }
    }
  }
  if (fonts == 0) {
    GTEST_SKIP() << "neither DejaVu Sans nor Liberation Sans is installed";
  }
}

// The factor is read when a program starts, so another one is started.
TEST_F(DialogFits, EveryTextIsWholeAtTwiceTheScale) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_SCALE_FACTOR", "2");
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(QApplication::applicationFilePath(),
                {"--gtest_filter=DialogFits.EveryTextIsWholeInEachFont*:DialogFits.TheScale*"});
  ASSERT_TRUE(process.waitForFinished(60'000));
  EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
}

TEST_F(DialogFits, TheScaleIsWhatTheEnvironmentAsksFor) {
  show();
  const QByteArray factor = qgetenv("QT_SCALE_FACTOR");
  EXPECT_EQ(dialog->devicePixelRatio(), factor.isEmpty() ? 1.0 : factor.toDouble());
}

// The colour that most of a widget shows.
QColor groundOf(const QWidget& widget, const QImage& picture, const QWidget& window) {
  std::map<QRgb, int> counts;
  const QRect place(widget.mapTo(&window, QPoint()), widget.size());
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) {
      ++counts[picture.pixel(x, y)];
    }
  }
  return std::ranges::max_element(counts, {}, &std::pair<const QRgb, int>::second)->first;
}

TEST_F(DialogFits, EveryTextCanBeReadInTheLightAndInTheDark) {
  storeMessages({"one", "two"});
  for (const QPalette& palette : {QApplication::palette(), darkPalette()}) {
    QApplication::setPalette(palette);
    for (int position = 0; position < pageCount; ++position) {
      show(position);
      const QImage picture = dialog->grab().toImage();
      ASSERT_EQ(picture.size(), dialog->size()) << "one pixel is one of the picture";
      for (const QWidget* widget : shownWidgets()) {
        const QColor text = widget->palette().color(widget->foregroundRole());
        if (widget->isEnabled() && !textOf(*widget).empty()) {
          EXPECT_GE(contrast(text, groundOf(*widget, picture, *dialog)), readableContrast) << textOf(*widget);
        }
      }
    }
  }
}

}  // namespace
