// Pictures as files.
#pragma once

#include <QImage>
#include <string>

namespace tessel {

/// Writes the picture in the kind that the file's name ends with. A file that is there is replaced
/// when it is empty or a picture of the same kind; any other stays, as it does when the picture
/// cannot be written. Errors are RuntimeErrors.
void WritePicture(const QImage& picture, const std::string& file);

}  // namespace tessel
