// What several tests of rich text need.
#pragma once

#include <random>
#include <string>

#include "platform/richtext/document.h"

namespace richtext {

// The bytes of a file below samples/.
std::string sample(const std::string& name);

std::string randomText(std::mt19937& random);
CharFormat randomFormat(std::mt19937& random);
Document randomDocument(std::mt19937& random);

// What Document promises of its paragraphs, as a gtest failure text; empty when all holds.
std::string brokenPromise(const Document& document);

}  // namespace richtext
