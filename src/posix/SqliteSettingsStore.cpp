#include "posix/SqliteSettingsStore.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

#include "base/RuntimeError.h"
#include "posix/HomeDirectory.h"
#include "posix/PathResolution.h"
#include "posix/Posix.h"
#include "posix/SaveTarget.h"
#include "text/Text.h"

namespace tessel {
namespace {

constexpr int kSchemaVersion = 1;
constexpr int kPatienceMilliseconds = 2000;

// The place of an entry is its row: a new row goes behind the last one, and a rewritten one stays.
constexpr const char* kTable = R"(CREATE TABLE settings (
    place INTEGER PRIMARY KEY,
    section BLOB NOT NULL,
    key BLOB NOT NULL,
    value BLOB NOT NULL,
    section_folded BLOB NOT NULL,
    key_folded BLOB NOT NULL,
    UNIQUE (section_folded, key_folded)
  ))";
constexpr const char* kVersionOfTheSchema = "PRAGMA user_version = 1";
// SQLite keeps the words of a table as they were given, and has none for the index of its UNIQUE.
constexpr const char* kIsTheTableWithItsIndex =
    "SELECT count(*) = 2 AND total(CAST(sql AS BLOB) = ?1) = 1"
    " AND total(type = 'index' AND sql IS NULL) = 1 FROM sqlite_schema";

// A look at twenty thousand entries takes 300 of these.
constexpr int kMostThousandsOfSteps = 5'000;

constexpr std::pair<int, int> kSafeguards[] = {{SQLITE_DBCONFIG_DEFENSIVE, 1},
                                               {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
                                               {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
                                               {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0}};

std::string FromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

/// SQLite takes ":memory:" for no file at all, and no path for a temporary one.
std::string AsFileName(const std::string& path) {
  return path.starts_with('/') ? path : "./" + path;
}

void MakePrivateDirectories(const std::string& directory) {
  if (directory.empty() || posix::StatusOf(directory)) return;
  MakePrivateDirectories(
      posix::DirectoryPart(directory.substr(0, directory.find_last_not_of('/') + 1)));
  if (::mkdir(directory.c_str(), S_IRWXU) == -1 && errno != EEXIST) {
    throw posix::FileProblem(errno);
  }
}

void MakePrivateFile(const std::string& path) {
  if (path.empty()) throw posix::FileProblem(ENOENT);
  MakePrivateDirectories(posix::DirectoryPart(path));
  posix::RefusePlanted(posix::FindSaveTarget(path));
  if (const auto status = posix::StatusOf(path)) return posix::RefuseUnlessRegular(*status);
  posix::Checked([&] {
    return posix::Descriptor(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)).Number();
  });
}

}  // namespace

std::string DefaultSettingsPath() {
  if (std::string store = FromEnvironment("ZANTHMAN_STORE"); !store.empty()) return store;
  std::string directory = FromEnvironment("XDG_CONFIG_HOME");
  // A relative directory there is to be ignored, says the standard of base directories.
  if (!directory.starts_with('/')) directory = posix::HomeDirectory() + "/.config";
  return directory + "/ZanthMan/settings.db";
}

/// A prepared statement, which is kept for the next use. Its words outlive the store. Parameters
/// count from 1, columns from 0; all are blobs.
class SqliteSettingsStore::Statement {
 public:
  Statement(SqliteSettingsStore& store, const char* sql)
      : store_(store), kept_(store.prepared_[sql]), prepared_(std::move(kept_)) {
    store.steps_ = 0;
    if (prepared_ == nullptr) prepared_ = store.Prepare(sql);
  }
  ~Statement() {
    sqlite3_reset(prepared_.get());
    sqlite3_clear_bindings(prepared_.get());
    kept_ = std::move(prepared_);
  }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  void Bind(int parameter, const std::string& bytes) {
    // The bytes outlive the statement.
    if (sqlite3_bind_blob64(prepared_.get(), parameter, bytes.data(), bytes.size(),
                            SQLITE_STATIC) != SQLITE_OK) {
      store_.Fail();
    }
  }

  /// True while there is a row.
  bool Step() {
    const int result = sqlite3_step(prepared_.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE) store_.Fail();
    return result == SQLITE_ROW;
  }

  std::string Bytes(int column) const {
    const void* bytes = sqlite3_column_blob(prepared_.get(), column);
    const int length = sqlite3_column_bytes(prepared_.get(), column);
    return bytes == nullptr
               ? std::string()
               : std::string(static_cast<const char*>(bytes), static_cast<std::size_t>(length));
  }
  int Number(int column) const { return sqlite3_column_int(prepared_.get(), column); }

 private:
  SqliteSettingsStore& store_;
  Prepared& kept_;
  Prepared prepared_;
};

void SqliteSettingsStore::Closer::operator()(sqlite3* database) const { sqlite3_close(database); }

void SqliteSettingsStore::Finalizer::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

SqliteSettingsStore::Prepared SqliteSettingsStore::Prepare(const char* sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database_.get(), sql, -1, &statement, nullptr) != SQLITE_OK) Fail();
  return Prepared(statement);
}

SqliteSettingsStore::SqliteSettingsStore(std::string path) : path_(std::move(path)) {
  try {
    MakePrivateFile(path_);
  } catch (const posix::FileProblem& problem) {
    Fail(problem.what());
  }
  Open();
  MakeSchema();
}

SqliteSettingsStore::~SqliteSettingsStore() = default;

void SqliteSettingsStore::Open() {
  sqlite3* database = nullptr;
  const int result =
      sqlite3_open_v2(AsFileName(path_).c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
  database_.reset(database);
  if (result != SQLITE_OK) Fail();
  sqlite3_extended_result_codes(database, 1);
  sqlite3_busy_timeout(database, kPatienceMilliseconds);
  TrustNothingInIt();
}

void SqliteSettingsStore::TrustNothingInIt() {
  for (const auto& [safeguard, on] : kSafeguards) {
    sqlite3_db_config(database_.get(), safeguard, on, nullptr);
  }
  const auto count = [](void* steps) -> int {
    return ++*static_cast<int*>(steps) > kMostThousandsOfSteps;
  };
  sqlite3_progress_handler(database_.get(), 1000, count, &steps_);
  Execute("PRAGMA cell_size_check = ON; PRAGMA mmap_size = 0");
}

void SqliteSettingsStore::MakeSchema() {
  if (Number("PRAGMA user_version") == kSchemaVersion) {
    RefuseOtherSchema();
    return RefuseIfDamaged();
  }
  // Somebody else may be making it at this moment: look again when nobody can.
  Execute("BEGIN IMMEDIATE");
  const int version = Number("PRAGMA user_version");
  if (version > kSchemaVersion) {
    Fail("it was written by a newer version of this program");
  }
  if (version < 0 || (version == 0 && Number("SELECT count(*) FROM sqlite_schema") > 0)) {
    Fail("it is no settings store");
  }
  if (version == kSchemaVersion) RefuseOtherSchema();
  // Writing into a damaged file may fail half-way, which changes it.
  RefuseIfDamaged();
  if (version == 0) {
    Execute(kTable);
    Execute(kVersionOfTheSchema);
  }
  Execute("COMMIT");
}

void SqliteSettingsStore::RefuseOtherSchema() {
  const std::string table = kTable;
  Statement look(*this, kIsTheTableWithItsIndex);
  look.Bind(1, table);
  if (!look.Step() || look.Number(0) != 1) Fail("it is no settings store");
}

/// Of itself SQLite only notices damage that it cannot read past: the rest would give wrong
/// answers.
void SqliteSettingsStore::RefuseIfDamaged() {
  {
    Statement check(*this, "PRAGMA integrity_check(1)");
    if (!check.Step() || check.Bytes(0) != "ok") Fail("it is damaged");
  }
  // Pages that are remembered from the check would hide what happens to the file later.
  sqlite3_db_release_memory(database_.get());
}

std::optional<std::string> SqliteSettingsStore::GetSetting(const std::string& section,
                                                           const std::string& key) {
  const std::string sectionFolded = AsciiLower(section);
  const std::string keyFolded = AsciiLower(key);
  Statement select(*this,
                   "SELECT value FROM settings WHERE section_folded = ?1 AND key_folded = ?2");
  select.Bind(1, sectionFolded);
  select.Bind(2, keyFolded);
  if (!select.Step()) return std::nullopt;
  return select.Bytes(0);
}

std::vector<SettingsStore::Entry> SqliteSettingsStore::GetAllSettings(const std::string& section) {
  const std::string sectionFolded = AsciiLower(section);
  Statement select(*this,
                   "SELECT key, value FROM settings WHERE section_folded = ?1 ORDER BY place");
  select.Bind(1, sectionFolded);
  std::vector<Entry> entries;
  while (select.Step()) entries.emplace_back(select.Bytes(0), select.Bytes(1));
  return entries;
}

void SqliteSettingsStore::SaveSetting(const std::string& section, const std::string& key,
                                      const std::string& value) {
  const std::string sectionFolded = AsciiLower(section);
  const std::string keyFolded = AsciiLower(key);
  Statement insert(*this,
                   "INSERT INTO settings (section, key, value, section_folded, key_folded)"
                   " VALUES (?1, ?2, ?3, ?4, ?5)"
                   " ON CONFLICT (section_folded, key_folded) DO UPDATE SET value = ?3");
  insert.Bind(1, section);
  insert.Bind(2, key);
  insert.Bind(3, value);
  insert.Bind(4, sectionFolded);
  insert.Bind(5, keyFolded);
  insert.Step();
}

void SqliteSettingsStore::SaveSettings(const std::string& section,
                                       const std::vector<Entry>& entries) {
  Execute("BEGIN IMMEDIATE");
  try {
    for (const auto& [key, value] : entries) SaveSetting(section, key, value);
    Execute("COMMIT");
  } catch (const RuntimeError&) {
    sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    throw;
  }
}

void SqliteSettingsStore::DeleteSetting(const std::string& section, const std::string& key) {
  const std::string sectionFolded = AsciiLower(section);
  const std::string keyFolded = AsciiLower(key);
  Statement remove(*this, "DELETE FROM settings WHERE section_folded = ?1 AND key_folded = ?2");
  remove.Bind(1, sectionFolded);
  remove.Bind(2, keyFolded);
  remove.Step();
}

void SqliteSettingsStore::Execute(const char* sql) {
  steps_ = 0;
  if (sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) Fail();
}

int SqliteSettingsStore::Number(const char* sql) {
  Statement statement(*this, sql);
  return statement.Step() ? statement.Number(0) : 0;
}

void SqliteSettingsStore::Fail(const std::string& reason) const {
  throw RuntimeError("Cannot use the settings store " + path_ + ": " + reason + ".");
}

void SqliteSettingsStore::Fail() const {
  const bool tooLong = sqlite3_errcode(database_.get()) == SQLITE_INTERRUPT;
  Fail(tooLong ? "it takes too long to read" : sqlite3_errmsg(database_.get()));
}

}  // namespace tessel
