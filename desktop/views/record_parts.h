// What the windows of all record screens share: the patient's banner and the bars around the
// record.
#pragma once

#include <QHBoxLayout>
#include <QMainWindow>
#include <QWidget>

#include "platform/forms/form.h"

namespace desktop {

// The form's `lblhasta`, and its warning `lbluyarı` where it has one.
[[nodiscard]] QWidget* recordBanner(const forms::Form& form, QWidget& parent);

// Menus, toolbar, status line (`tbToolBar`, `sbDurum`) and timers of the form.
void addRecordBars(QMainWindow& window, const forms::Form& form);

// The button of that name, which Enter presses, and the form's `Butİptal`, at the right.
[[nodiscard]] QHBoxLayout* acceptingRow(const forms::Form& form, QWidget& parent,
                                        std::string_view accepting);

}  // namespace desktop
