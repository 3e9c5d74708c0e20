// The pieces of a printed page, for pages with a layout of their own too. They draw for the printer
// and for the preview alike.
#pragma once

#include <functional>
#include <string_view>

#include "platform/forms/font.h"
#include "platform/page/device.h"
#include "platform/richtext/document.h"
#include "shell/station.h"

namespace documents {

// The left margin of printed pages in twips, from the user's settings.
[[nodiscard]] int solMarj(const shell::Station& istasyon);
void YaziciFontuAyarla(page::Device& device, const forms::Font& font);

// The letterhead: its picture at the top, its text below; the device keeps the font that it had.
// Files that are missing or broken are passed over.
void BaslikYazici(const shell::Station& istasyon, page::Device& device);

// Copies a text to the page from the device's place on, every line starting at its left edge. A
// line that would end below `bottom` asks `full` first, which may turn the page; false ends the
// copy. Lines are those of the text; one that would leave the sheet is broken between words as
// well.
void metniYaz(page::Device& device, const richtext::Document& text, int bottom,
              const std::function<bool()>& full);
// The same in a room of the caller's own: how wide its lines are at the most, and where it ends.
struct TextRoom {
  int width;
  int bottom;
};
void metniYaz(page::Device& device, const richtext::Document& text, TextRoom room,
              const std::function<bool()>& full);

// Every line of the signature ends at the same place on the right, in the font that the dialog of
// templates stored, else in the device's own.
void imzaYaz(const shell::Station& istasyon, page::Device& device, std::string_view imza);
// How high the signature is, with the gap above it.
[[nodiscard]] int imzaBoyu(const shell::Station& istasyon, const page::Device& device,
                           std::string_view imza);

// The lowest place that printers reach.
[[nodiscard]] int sayfaSonu(const page::Device& device);

}  // namespace documents
