#include "exam/exam_speciality.h"

#include <algorithm>

namespace exam {

namespace {

// Neurology and urology use the entries of internal medicine and of surgery.
constexpr std::array<Workspace, 12> workspaces{{
    {20, Frame::None, {}},
    {1, Frame::None, {}},
    {2, Frame::None, {"operation"}},
    {3, Frame::None, {"asi", "fizikgelişme", "motmengelişme"}},
    {4, Frame::Gynecology, {"operation", "Gebe"}},
    {5, Frame::Eye, {"operation", "Lens", "glass"}},
    {6, Frame::Ent, {"operation"}},
    {7, Frame::None, {"operation"}},
    {10, Frame::Heart, {"angio", "efor", "echo"}},
    {11, Frame::None, {}},
    {12, Frame::None, {"operation"}},
    {13, Frame::None, {}},
}};

}  // namespace

bool Workspace::shows(std::string_view companion) const {
  return std::ranges::find(companions, companion) != companions.end();
}

const Workspace& workspaceOf(int bransNo) {
  const auto found = std::ranges::find(workspaces, bransNo, &Workspace::BransNo);
  return found == workspaces.end() ? workspaces.front() : *found;
}

}  // namespace exam
