// The windows of the laboratory: catalogue, request, results and their filter.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/forms/form.h"

namespace desktop {

std::unique_ptr<QWidget> testCatalogueView(forms::Form& form);
std::unique_ptr<QWidget> testRequestView(forms::Form& form);
std::unique_ptr<QWidget> testResultsView(forms::Form& form);
std::unique_ptr<QWidget> testFilterView(forms::Form& form);

}  // namespace desktop
