// Which window a form gets.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/forms/form.h"

namespace desktop {

class ViewRegistry {
 public:
  using Builder = std::function<std::unique_ptr<QWidget>(forms::Form&)>;

  void add(std::string_view form, Builder builder) {
    builders_.insert_or_assign(std::string(form), std::move(builder));
  }
  // The form's own layout, or the one that suits any form.
  [[nodiscard]] std::unique_ptr<QWidget> build(forms::Form& form) const;

 private:
  std::map<std::string, Builder, std::less<>> builders_;
};

// The layouts of this program.
[[nodiscard]] ViewRegistry programViews();

}  // namespace desktop
