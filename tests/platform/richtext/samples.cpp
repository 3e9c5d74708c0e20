#include "samples.h"

#include <array>
#include <fstream>
#include <iterator>

namespace richtext {
namespace {

int below(std::mt19937& random, int limit) {
  return std::uniform_int_distribution<int>(0, limit - 1)(random);
}

bool coin(std::mt19937& random) {
  return below(random, 2) == 1;
}

std::string brokenParagraph(const Paragraph& paragraph) {
  if (paragraph.runs.empty()) return "a paragraph without a run";
  for (std::size_t i = 0; i < paragraph.runs.size(); ++i) {
    if (paragraph.runs[i].text.empty() && paragraph.runs.size() > 1) return "an empty run";
    if (i > 0 && paragraph.runs[i].format == paragraph.runs[i - 1].format)
      return "equal neighbours";
  }
  return {};
}

}  // namespace

std::string sample(const std::string& name) {
  std::ifstream file(std::string(RICHTEXT_SAMPLES) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string randomText(std::mt19937& random) {
  static constexpr std::array kPieces{"a",  "B7", " ",  "  ", "\t", "ı", "Ş",   "{", "}",
                                      "\\", ";",  "-1", "€",  "α",  "😀", "\\'", "ﬁ", "\u00AD"};
  std::string text;
  for (int left = below(random, 8); left > 0; --left)
    text += kPieces[static_cast<std::size_t>(below(random, static_cast<int>(kPieces.size())))];
  return text;
}

CharFormat randomFormat(std::mt19937& random) {
  CharFormat format;
  if (coin(random)) format.font = coin(random) ? "Tahoma" : "Yazı {Tipi} \\2";
  if (coin(random)) format.halfPoints = 1 + below(random, 3276);
  format.bold = coin(random);
  format.italic = coin(random);
  format.underline = coin(random);
  format.strike = coin(random);
  format.script = static_cast<Script>(below(random, 3));
  if (coin(random)) format.colour = static_cast<std::uint32_t>(below(random, 3)) * 0x7F0180U;
  return format;
}

Document randomDocument(std::mt19937& random) {
  std::vector<Paragraph> paragraphs;
  for (int left = 1 + below(random, 4); left > 0; --left) {
    Paragraph paragraph;
    for (int runs = below(random, 4); runs > 0; --runs)
      paragraph.runs.push_back({randomText(random), randomFormat(random)});
    paragraph.format.alignment = static_cast<Alignment>(below(random, 3));
    if (coin(random)) paragraph.format.leftIndent = below(random, 3000);
    if (coin(random)) paragraph.format.rightIndent = below(random, 3000);
    if (coin(random)) paragraph.format.firstIndent = below(random, 1000) - 500;
    paragraph.format.mark = coin(random) ? ListMark::Bullet : ListMark::None;
    paragraphs.push_back(std::move(paragraph));
  }
  return Document(std::move(paragraphs));
}

std::string brokenPromise(const Document& document) {
  if (document.paragraphs().empty()) return "no paragraph";
  for (const Paragraph& paragraph : document.paragraphs())
    if (const std::string broken = brokenParagraph(paragraph); !broken.empty()) return broken;
  return Document(document.paragraphs()) == document ? "" : "not normal";
}

}  // namespace richtext
