// The names that the open documents give to something.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/script/OpenScripts.h"
#include "surface/DocumentList.h"

namespace tessel {

/// Whatever the case of ASCII letters, which is all that a list on the screen disregards.
bool BeginsWith(std::string_view word, std::string_view prefix);

/// Reads the names of a document again where its text has changed since. Documents and scripts
/// outlive this.
class KnownNames {
 public:
  KnownNames(const DocumentList& documents, OpenScripts& scripts);

  /// Those that begin with that (see BeginsWith), of all documents; some may be there twice. A
  /// large text is only read again `thoroughly`: that can take a good part of a second.
  std::vector<std::string> BeginningWith(std::string_view prefix, bool thoroughly);

 private:
  struct Names {
    bool read = false;
    bool stale = true;
    std::vector<std::string> names;
  };

  Names& At(Slot slot);
  void Read(const Document& document, Names& names);

  const DocumentList& documents_;
  OpenScripts& scripts_;
  std::vector<Names> names_;  // by slot
  Subscription changed_;
};

}  // namespace tessel
