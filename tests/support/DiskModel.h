// What can be on a disk when the power fails.
#pragma once

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/FileCalls.h"

namespace tessel::test {

/// A folder's content: the bytes of each file below it, nothing for a folder, by path.
using DiskContent = std::map<std::string, std::optional<std::string>>;

/// Puts that content in the place of the folder's own.
inline void PutOnDisk(const std::string& root, const DiskContent& content) {
  for (const auto& entry : std::filesystem::directory_iterator(root)) {
    std::filesystem::remove_all(entry.path());
  }
  for (const auto& [path, bytes] : content) {
    if (bytes) {
      std::ofstream(path, std::ios::binary) << *bytes;
    } else {
      std::filesystem::create_directory(path);
    }
  }
}

/// A disk that promises no more than is written down of one: a flushed file has its bytes, a
/// flushed folder its names. Of what is not flushed, each name is an old or the new one, whatever
/// became of the others, and each file has old bytes, new ones, zeros, a part of them, or later
/// ones without those before. A flushed file may be without its name, and a name without its bytes.
class DiskModel {
 public:
  /// What is in the folder now is flushed.
  explicit DiskModel(std::string root) : root_(std::move(root)) { Load(Make(true), root_); }

  void Apply(const FileCall& call) {
    switch (call.kind) {
      case FileCall::Kind::kMakeFile:
        if (!Find(call.path)) Name(call.path, Make(false));
        break;
      case FileCall::Kind::kMakeFolder:
        Name(call.path, Make(true));
        break;
      case FileCall::Kind::kWrite:
        Change(call.path, {call.number, call.bytes, std::nullopt});
        break;
      case FileCall::Kind::kResize:
        Change(call.path, {0, {}, call.number});
        break;
      case FileCall::Kind::kGrow:
        if (NodeAt(call.path).now.size() < call.number) {
          Change(call.path, {0, {}, call.number});
        }
        break;
      case FileCall::Kind::kRename: {
        const NodeNumber moved = NumberAt(call.path);
        Name(call.other, moved);
        Name(call.path, std::nullopt);
        break;
      }
      case FileCall::Kind::kLink:
        Name(call.other, NumberAt(call.path));
        break;
      case FileCall::Kind::kRemove:
        Name(call.path, std::nullopt);
        break;
      case FileCall::Kind::kFlush:
        // A file without a name is of no use to anybody.
        if (const auto node = Find(call.path)) Flush(nodes_[*node]);
        break;
      case FileCall::Kind::kFlushAll:
        for (Node& node : nodes_) Flush(node);
        break;
      case FileCall::Kind::kNote:
        break;
    }
  }

  /// Calls `visit` with everything that can be on the disk now.
  void EachContent(const std::function<void(const DiskContent&)>& visit) const {
    std::vector<Choice> choices = Choices();
    std::size_t count = 1;
    for (const Choice& choice : choices) count *= choice.options;
    if (count > kMost) throw std::logic_error("too much is left open to look at all of it");
    for (std::size_t i = 0; i < count; ++i) {
      std::size_t rest = i;
      for (Choice& choice : choices) {
        choice.taken = rest % choice.options;
        rest /= choice.options;
      }
      visit(ContentAt(choices));
    }
  }

 private:
  using NodeNumber = std::size_t;
  struct FileChange {
    std::size_t from;
    std::string bytes;
    std::optional<std::size_t> size;
  };
  struct Node {
    bool isFolder;
    // Of a file.
    std::string flushed;
    std::string now;
    std::vector<FileChange> changes;
    // Of a folder: what each name stood for since the last flush, the newest last.
    std::map<std::string, std::vector<std::optional<NodeNumber>>> names;
  };
  /// One thing that a failing power leaves open.
  struct Choice {
    NodeNumber node;
    std::string name;  // in a folder
    std::size_t options;
    std::size_t taken = 0;
  };
  static constexpr std::size_t kPage = 4096;
  static constexpr std::size_t kMost = 100'000;

  NodeNumber Make(bool isFolder) {
    nodes_.push_back({isFolder, {}, {}, {}, {}});
    return nodes_.size() - 1;
  }

  void Load(NodeNumber folder, const std::string& path) {
    for (const auto& entry : std::filesystem::directory_iterator(path)) {
      const NodeNumber node = NumberOf(entry);
      nodes_[folder].names[entry.path().filename()] = {node};
    }
  }
  /// A file with two names is one.
  NodeNumber NumberOf(const std::filesystem::directory_entry& entry) {
    if (entry.is_directory()) {
      const NodeNumber node = Make(true);
      Load(node, entry.path());
      return node;
    }
    for (const auto& [path, node] : loaded_) {
      if (std::filesystem::equivalent(path, entry.path())) return node;
    }
    const NodeNumber node = Make(false);
    std::ifstream file(entry.path(), std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    nodes_[node].flushed = nodes_[node].now = bytes.str();
    loaded_.emplace_back(entry.path(), node);
    return node;
  }

  std::optional<NodeNumber> Find(const std::string& path) const {
    if (path == root_) return 0;
    const std::size_t slash = path.rfind('/');
    const auto folder = Find(path.substr(0, slash));
    if (!folder) return std::nullopt;
    const auto& names = nodes_[*folder].names;
    const auto name = names.find(path.substr(slash + 1));
    return name == names.end() ? std::nullopt : name->second.back();
  }
  NodeNumber NumberAt(const std::string& path) const {
    const auto node = Find(path);
    if (!node) throw std::logic_error("the model does not know " + path);
    return *node;
  }
  Node& NodeAt(const std::string& path) { return nodes_[NumberAt(path)]; }

  void Name(const std::string& path, std::optional<NodeNumber> node) {
    const std::size_t slash = path.rfind('/');
    auto& values = NodeAt(path.substr(0, slash)).names[path.substr(slash + 1)];
    if (values.empty()) values.emplace_back();
    values.push_back(node);
  }

  void Change(const std::string& path, FileChange change) {
    // Written to after it was removed.
    if (!Find(path)) return;
    Node& file = NodeAt(path);
    file.now = Changed(file.now, change);
    file.changes.push_back(std::move(change));
  }
  static std::string Changed(std::string bytes, const FileChange& change) {
    if (change.size) {
      bytes.resize(*change.size);
    } else {
      bytes.resize(std::max(bytes.size(), change.from + change.bytes.size()));
      bytes.replace(change.from, change.bytes.size(), change.bytes);
    }
    return bytes;
  }

  static void Flush(Node& node) {
    node.flushed = node.now;
    node.changes.clear();
    for (auto& [name, values] : node.names) values = {values.back()};
  }

  // --- What the power leaves

  /// What an unflushed file can hold, each once.
  static std::vector<std::string> BytesLeft(const Node& file) {
    std::set<std::string> left = {file.flushed, file.now};
    std::string soFar = file.flushed;
    for (std::size_t i = 0; i < file.changes.size(); ++i) {
      const FileChange& change = file.changes[i];
      for (const FileChange& part : PartsOf(change)) {
        left.insert(Changed(soFar, part));
        left.insert(Changed(file.flushed, part));  // none of those before
      }
      std::string others = soFar;  // this one missing
      for (std::size_t j = i + 1; j < file.changes.size(); ++j) {
        others = Changed(others, file.changes[j]);
        left.insert(others);
      }
      soFar = Changed(soFar, change);
    }
    return {left.begin(), left.end()};
  }
  /// What can come of one change.
  static std::vector<FileChange> PartsOf(const FileChange& change) {
    const auto& [from, bytes, size] = change;
    if (size || bytes.empty()) return {change};
    const std::size_t page = std::min(kPage, bytes.size());
    const std::size_t half = bytes.size() / 2;
    std::string withoutStart = bytes;
    withoutStart.replace(0, page, page, '\0');
    return {change,
            {from, std::string(bytes.size(), '\0'), {}},
            {from, withoutStart, {}},
            {from + page, bytes.substr(page), {}},
            {from, bytes.substr(0, page), {}},
            {from, bytes.substr(0, half), {}}};
  }

  std::vector<Choice> Choices() const {
    std::vector<Choice> choices;
    std::set<NodeNumber> seen;
    std::vector<NodeNumber> waiting = {0};
    while (!waiting.empty()) {
      const NodeNumber number = waiting.back();
      waiting.pop_back();
      if (!seen.insert(number).second) continue;
      const Node& node = nodes_[number];
      if (!node.changes.empty()) choices.push_back({number, {}, BytesLeft(node).size()});
      for (const auto& [name, values] : node.names) {
        if (values.size() > 1) choices.push_back({number, name, values.size()});
        for (const auto& value : values) {
          if (value) waiting.push_back(*value);
        }
      }
    }
    return choices;
  }

  DiskContent ContentAt(const std::vector<Choice>& choices) const {
    std::map<std::pair<NodeNumber, std::string>, std::size_t> taken;
    for (const Choice& choice : choices) taken[{choice.node, choice.name}] = choice.taken;
    DiskContent content;
    Gather(0, root_, taken, content);
    content.erase(root_);
    return content;
  }
  void Gather(NodeNumber number, const std::string& path,
              const std::map<std::pair<NodeNumber, std::string>, std::size_t>& taken,
              DiskContent& content) const {
    const Node& node = nodes_[number];
    const auto takenOf = [&](const std::string& name) {
      const auto found = taken.find({number, name});
      return found == taken.end() ? 0 : found->second;
    };
    if (!node.isFolder) {
      content[path] = node.changes.empty() ? node.flushed : BytesLeft(node)[takenOf("")];
      return;
    }
    content[path] = std::nullopt;
    for (const auto& [name, values] : node.names) {
      const auto& value = values[takenOf(name)];
      if (value) Gather(*value, path + "/" + name, taken, content);
    }
  }

  std::string root_;
  std::vector<Node> nodes_;
  std::vector<std::pair<std::filesystem::path, NodeNumber>> loaded_;
};

}  // namespace tessel::test
