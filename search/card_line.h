// A card as a row of the result list.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "platform/dao/recordset.h"
#include "platform/forms/list_control.h"
#include "shell/station.h"

namespace search {

// The cells of a row, in their order.
enum class CardCell { Name, Birth, Sex, Place, Profession, Mail, Telephone, Notes };

class CardLine {
 public:
  // The words of the sexes are looked up once.
  explicit CardLine(shell::Station& istasyon);

  // The columns of the card that a row needs.
  [[nodiscard]] static std::span<const std::string_view> columns();
  [[nodiscard]] static std::vector<std::string> headings(shell::Station& istasyon);

  // Over what the row holds, whose memory is used again. The key of the row is the stored name; the
  // row shows it without the marks of namesakes.
  void write(dao::Recordset& card, forms::ListView::Row& row) const;

 private:
  std::array<std::string, 2> sexes_;
};

}  // namespace search
