// Tables of fields shared by the record layouts: which member stands at which offset.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "platform/files/record_buffer.h"

namespace files {

template <class Layout>
struct TextField {
  std::string Layout::*member;
  std::size_t offset;
  std::size_t width;
};

template <class Layout>
struct NumberField {
  std::int16_t Layout::*member;
  std::size_t offset;
};

template <class Layout>
struct FlagField {
  bool Layout::*member;
  std::size_t offset;
};

// A record as nobody has written it yet: its texts are blank, its numbers 0. One that holds nothing
// but zeros, as the room that a file gained does, is the same.
template <class Layout>
RecordBuffer asNew(RecordBuffer buffer, std::span<const TextField<Layout>> texts) {
  if (buffer != RecordBuffer{buffer.size()}) return buffer;
  for (const TextField<Layout>& field : texts) buffer.setText(field.offset, field.width, {});
  return buffer;
}

template <class Layout>
void read(Layout& layout, const RecordBuffer& buffer, const TextField<Layout>& field) {
  layout.*field.member = buffer.textAt(field.offset, field.width);
}

template <class Layout>
void read(Layout& layout, const RecordBuffer& buffer, const NumberField<Layout>& field) {
  layout.*field.member = buffer.int16At(field.offset);
}

template <class Layout>
void read(Layout& layout, const RecordBuffer& buffer, const FlagField<Layout>& field) {
  layout.*field.member = buffer.flagAt(field.offset);
}

// Writing passes over what has not changed: how another program padded a text or wrote "true" stays
// as it is.
template <class Layout>
void write(const Layout& layout, RecordBuffer& buffer, const TextField<Layout>& field) {
  if (buffer.textAt(field.offset, field.width) == layout.*field.member) return;
  buffer.setText(field.offset, field.width, layout.*field.member);
}

template <class Layout>
void write(const Layout& layout, RecordBuffer& buffer, const NumberField<Layout>& field) {
  buffer.setInt16(field.offset, layout.*field.member);
}

template <class Layout>
void write(const Layout& layout, RecordBuffer& buffer, const FlagField<Layout>& field) {
  if (buffer.flagAt(field.offset) == layout.*field.member) return;
  buffer.setFlag(field.offset, layout.*field.member);
}

}  // namespace files
