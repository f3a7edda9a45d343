// Reads the program's icon.
#include "host/sheet/linux/sheetIcon.h"

#include <QBuffer>
#include <QImageReader>
#include <QPixmap>

#include "support/linux/resources.h"

namespace {

constexpr int iconResource = 201;

}  // namespace

QIcon sheetIcon() {
  QIcon icon;
  const auto bytes = findResource("icon", iconResource);
  if (!bytes) {
    return icon;
  }
  QByteArray file = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes->data()),
                                            static_cast<qsizetype>(bytes->size()));
  QBuffer buffer(&file);
  QImageReader reader(&buffer, "ico");
  for (int i = 0; i < reader.imageCount(); ++i) {
    if (reader.jumpToImage(i)) {
      icon.addPixmap(QPixmap::fromImageReader(&reader));
    }
  }
  return icon;
}
