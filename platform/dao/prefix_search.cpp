#include "platform/dao/prefix_search.h"

#include <optional>

#include "platform/dao/catalogue.h"
#include "platform/dao/engine.h"
#include "platform/dao/sorted_rows.h"
#include "platform/text/fold.h"
#include "platform/text/utf8.h"

namespace dao {
namespace {

constexpr int kRowsBetweenLooks = 64;
constexpr char kLevelEnd = 1;

enum Column { KeyColumn, NameColumn, ExtraColumn, FoldColumn };

// The bytes of the first characters.
std::string_view leftView(std::string_view text, std::size_t characters) {
  std::size_t position = 0;
  for (; characters > 0 && position < text.size(); --characters)
    (void)text::nextCharacter(text, position);
  return text.substr(0, position);
}

// The typed text, and which names begin with it.
class Prefix {
 public:
  Prefix(std::string_view typed, Fold fold)
      : fold_(fold),
        length_(text::length(typed)),
        folded_(folded(typed, fold)),
        keepsLength_(text::length(folded_) == length_) {}

  [[nodiscard]] const std::string& first() const { return folded_; }

  // Above every folded name that begins with the prefix.
  [[nodiscard]] std::string end() const {
    if (folded_.empty()) return "\xFF";
    std::string end = folded_;
    end.back() = static_cast<char>(static_cast<unsigned char>(end.back()) + 1);
    return end;
  }

  // For names whose fold begins with the prefix. Only a character whose capital is several
  // characters makes a difference then, and ASCII has none.
  [[nodiscard]] bool begins(std::string_view name) {
    const std::string_view start = leftView(name, length_);
    const bool ascii = start.size() == length_ && text::isAscii(start);
    return (ascii && keepsLength_) || start == lastFitting_ || beginsFolded(start);
  }

 private:
  bool beginsFolded(std::string_view start) {
    if (folded(start, fold_) != folded_) return false;
    lastFitting_ = start;  // names come in folded order: the next one mostly begins alike
    return true;
  }

  Fold fold_;
  std::size_t length_;
  std::string folded_;
  bool keepsLength_;
  std::optional<std::string> lastFitting_;
};

HelperDef helperOf(std::string_view field, Fold fold) {
  return {
      fold == Fold::Turkish ? HelperIndex::PrefixSearchTurkish : HelperIndex::PrefixSearchGeneral,
      field};
}

// The extra field that an index carries, "" for none.
Result<std::string> extraField(Engine& engine, const std::string& index,
                               const std::string& subject) {
  auto statement = engine.prepare("SELECT name FROM pragma_index_info(?) WHERE seqno = 2", subject);
  if (!statement) return std::unexpected(statement.error());
  statement->bindView(1, index);
  const auto row = statement->step(subject);
  if (!row) return std::unexpected(row.error());
  return *row ? std::string(statement->text(0)) : "";
}

std::string selection(const std::string& table, const std::string& index, std::string_view field,
                      const std::string& extra, Fold fold) {
  const std::string name = sqlName(field);
  const std::string foldCall =
      (fold == Fold::Turkish ? "fold_turkish(" : "fold_general(") + name + ")";
  return "SELECT order_key(" + name + "), " + name + ", " +
         (extra.empty() ? "''" : sqlName(extra)) + ", " + foldCall + " FROM " + sqlName(table) +
         " INDEXED BY " + sqlName(index) + " WHERE " + foldCall + " >= ?1 AND " + foldCall +
         " < ?2 ORDER BY " + foldCall;
}

// The bytes that the keys of most names with this beginning share: all of its key but the level
// behind the letters.
std::string commonKey(const Engine& engine, std::string_view typed) {
  const std::string key = engine.collator().key(typed);
  return key.substr(0, key.find(kLevelEnd));
}

}  // namespace

std::string folded(std::string_view text, Fold fold) {
  return fold == Fold::Turkish ? text::upperTurkish(text) : text::upper(text);
}

struct PrefixReader::State {
  std::shared_ptr<Engine> engine;
  std::string subject;
  Statement select;
  Prefix prefix;
  std::string from;  // the fold that the next slice begins with
  std::string end;
  bool read = false;
  SortedRows rows;

  Status readSlice(Deadline deadline);
  void take() {
    const std::string_view name = select.text(NameColumn);
    if (prefix.begins(name)) rows.add(select.text(KeyColumn), name, select.text(ExtraColumn));
  }
};

// A slice ends between two different folds, so that the next one can begin by the fold alone.
Status PrefixReader::State::readSlice(Deadline deadline) {
  select.bindView(1, from);
  select.bindView(2, end);
  std::string last;
  bool late = false;
  for (int count = 1;; ++count) {
    const auto more = select.step(subject);
    if (!more) return more.error();
    if (!*more) {
      read = true;
      break;
    }
    if (late && select.text(FoldColumn) != last) {
      last = select.text(FoldColumn);
      break;
    }
    take();
    if (late || count % kRowsBetweenLooks != 0) continue;
    late = std::chrono::steady_clock::now() >= deadline;
    if (late) last = select.text(FoldColumn);
  }
  select.reset();
  // Else an index that is out of order would be read in a circle.
  if (!read && last <= from) return {Fault::Damaged, subject + ": the file is damaged."};
  from = std::move(last);
  rows.closeRun();
  return {};
}

PrefixReader::PrefixReader(std::unique_ptr<State> state) : state_(std::move(state)) {}
PrefixReader::PrefixReader(PrefixReader&&) noexcept = default;
PrefixReader& PrefixReader::operator=(PrefixReader&&) noexcept = default;
PrefixReader::~PrefixReader() = default;

Result<PrefixReader> PrefixReader::open(const Database& database, std::string_view table,
                                        std::string_view field, Fold fold, std::string_view typed) {
  const auto& engine = database.engine();
  if (!database.isOpen()) return std::unexpected(Status(Fault::NoCurrent, "The store is closed."));
  const std::string subject = subjectOf(*engine, table);
  const std::string index = helperNameInFile(table, helperOf(field, fold));
  const auto there = hasIndex(*engine, index);
  if (!there) return std::unexpected(there.error());
  if (!*there)
    return std::unexpected(
        Status(Fault::Missing, subject + ": there is no prefix search on this field."));
  const auto extra = extraField(*engine, index, subject);
  if (!extra) return std::unexpected(extra.error());
  auto select = engine->prepare(selection(std::string(table), index, field, *extra, fold), subject);
  if (!select) return std::unexpected(select.error());
  const Prefix prefix(text::sanitize(typed), fold);
  return PrefixReader(
      std::make_unique<State>(State{engine, subject, std::move(*select), prefix, prefix.first(),
                                    prefix.end(), false, SortedRows(commonKey(*engine, typed))}));
}

Result<bool> PrefixReader::step(std::chrono::microseconds budget) {
  const Deadline start = std::chrono::steady_clock::now();
  if (state_->read) return state_->rows.merge(start + budget);
  // Sorting what was read takes about as long as reading it.
  if (Status status = state_->readSlice(start + budget / 2); !status)
    return std::unexpected(std::move(status));
  return false;
}

std::span<const PrefixRow> PrefixReader::rows() const {
  return state_->rows.rows();
}

}  // namespace dao
