// The pictures of menu entries; decoration only.
#pragma once

#include "platform/forms/form.h"

namespace shell {

// Gives every entry of the form that the list of pictures names its picture.
void menuikon(forms::Form& form);

}  // namespace shell
