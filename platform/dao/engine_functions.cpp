#include "platform/dao/engine_functions.h"

#include <array>
#include <string>

#include "platform/dao/pattern.h"
#include "platform/dao/prefix_search.h"
#include "platform/text/date.h"
#include "platform/text/utf8.h"

namespace dao {
namespace {

using Arguments = sqlite3_value**;

std::string_view textOf(sqlite3_value* value) {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return bytes ? std::string_view(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))) : "";
}

bool isNull(sqlite3_value* value) {
  return sqlite3_value_type(value) == SQLITE_NULL;
}

void answer(sqlite3_context* context, std::string_view text) {
  sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

const Collator& collatorOf(sqlite3_context* context) {
  return *static_cast<const Collator*>(sqlite3_user_data(context));
}

int compareTexts(void* collator, int leftSize, const void* left, int rightSize, const void* right) {
  return static_cast<const Collator*>(collator)->compare(
      {static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
      {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

template <Fold fold>
void foldText(sqlite3_context* context, int, Arguments arguments) {
  if (!isNull(arguments[0])) answer(context, folded(textOf(arguments[0]), fold));
}

void orderKey(sqlite3_context* context, int, Arguments arguments) {
  if (isNull(arguments[0])) return;
  const std::string key = collatorOf(context).key(textOf(arguments[0]));
  sqlite3_result_blob64(context, key.data(), key.size(), SQLITE_TRANSIENT);
}

void left(sqlite3_context* context, int, Arguments arguments) {
  if (isNull(arguments[0]) || isNull(arguments[1])) return;
  const std::int64_t length = sqlite3_value_int64(arguments[1]);
  if (length < 0) return sqlite3_result_error(context, "left: the length is negative", -1);
  answer(context, text::left(textOf(arguments[0]), length));
}

void len(sqlite3_context* context, int, Arguments arguments) {
  if (!isNull(arguments[0]))
    sqlite3_result_int64(context, static_cast<sqlite3_int64>(text::length(textOf(arguments[0]))));
}

void dateValue(sqlite3_context* context, int, Arguments arguments) {
  if (isNull(arguments[0])) return;
  auto date = text::parseIso(textOf(arguments[0]));
  if (!date) return;
  date->seconds = 0;
  answer(context, text::isoText(*date));
}

// "x like y" calls like(y, x).
template <Order order>
void like(sqlite3_context* context, int, Arguments arguments) {
  if (isNull(arguments[0]) || isNull(arguments[1])) return;
  const bool fits = matchesPattern(textOf(arguments[1]), textOf(arguments[0]), order);
  sqlite3_result_int(context, fits ? 1 : 0);
}

struct Function {
  const char* name;
  int arguments;
  void (*call)(sqlite3_context*, int, Arguments);
};

}  // namespace

int addCollation(sqlite3* connection, Order order, const Collator& collator) {
  return sqlite3_create_collation_v2(connection, collationName(order).data(), SQLITE_UTF8,
                                     const_cast<Collator*>(&collator), compareTexts, nullptr);
}

int addFunctions(sqlite3* connection, Order order, const Collator& collator) {
  const std::array functions{
      Function{"fold_general", 1, foldText<Fold::General>},
      Function{"fold_turkish", 1, foldText<Fold::Turkish>},
      Function{"order_key", 1, orderKey},
      Function{"left", 2, left},
      Function{"len", 1, len},
      Function{"DateValue", 1, dateValue},
      Function{"like", 2, order == Order::Turkish ? like<Order::Turkish> : like<Order::General>},
  };
  constexpr int kFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  void* context = const_cast<Collator*>(&collator);
  int code = addCollation(connection, order, collator);
  for (const Function& function : functions) {
    if (code != SQLITE_OK) return code;
    code = sqlite3_create_function_v2(connection, function.name, function.arguments, kFlags,
                                      context, function.call, nullptr, nullptr, nullptr);
  }
  return code;
}

}  // namespace dao
