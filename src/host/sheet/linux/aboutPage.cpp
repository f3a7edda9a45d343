// Implements the About page.
#include "host/sheet/linux/aboutPage.h"

#include "host/sheet/aboutText.h"
#include "host/sheet/controlIds.h"

AboutPage::AboutPage() {
  setObjectName(QString::number(controlIds::about));
  setTextFormat(Qt::RichText);
  setTextInteractionFlags(Qt::TextBrowserInteraction);
  setOpenExternalLinks(true);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  const int margin = fontMetrics().height();
  setContentsMargins(margin, margin, margin, margin);
}

void AboutPage::open(const std::string& settingsFile) {
  const QString file = QString::fromStdString(settingsFile).toHtmlEscaped();
  const QString link = "<a href=\"" + QString::fromStdString(aboutAddress()) + "\">";
  setText(
      QString::fromStdString(aboutText(file.toStdString(), " ")).replace("<a>", link).replace("\n", "<br>"));
}
