#include "host/process/Picture.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

#include "base/RuntimeError.h"
#include "posix/Posix.h"
#include "posix/PosixFiles.h"
#include "qt/base/QtText.h"

namespace tessel {
namespace {

QByteArray Encoded(const QImage& picture, const std::string& file) {
  const QByteArray kind = QFileInfo(ShownName(file)).suffix().toLatin1();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (kind.isEmpty() || !picture.save(&buffer, kind.constData())) {
    throw RuntimeError("its name has no ending of a picture, such as .png.");
  }
  return buffer.data();
}

QByteArray KindOf(QByteArray bytes) {
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  return QImageReader::imageFormat(&buffer);
}

void RefuseToReplace(const std::string& bytes, const QByteArray& kind) {
  if (bytes.empty() || (!kind.isEmpty() && KindOf(QByteArray::fromStdString(bytes)) == kind)) {
    return;
  }
  throw RuntimeError("the file exists and is no such picture.");
}

}  // namespace

void WritePicture(const QImage& picture, const std::string& file) {
  const QByteArray bytes = Encoded(picture, file);
  PosixFiles files;
  if (posix::StatusOf(file)) RefuseToReplace(files.Read(file), KindOf(bytes));
  files.WriteAs(file, bytes.toStdString());
}

}  // namespace tessel
