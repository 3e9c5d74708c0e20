// The toolkit's headers that nearly every file here needs, compiled once.
#pragma once

#include <QtWidgets/QtWidgets>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>
