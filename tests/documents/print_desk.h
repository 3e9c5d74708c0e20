// A desk with a printer, whose folder has its shared files open.
#pragma once

#include <filesystem>
#include <fstream>

#include "platform/files/setting_record.h"
#include "tests/support/practice.h"
#include "tests/support/scripted_printer.h"

namespace support {

// A base of its own, so that the folder is there before the station that works in it.
struct OwnFolder {
  TemporaryFolder folder;
};

struct PrintDesk : OwnFolder, Desk {
  explicit PrintDesk(std::string_view language = "tr")
      : Desk(folder.path(), "General Medicine", language) {
    std::filesystem::create_directories(station.dosya("Data"));
    station.stores.settings.emplace(
        files::RecordFile::open(station.dosya("Data/setting.dat"), files::SettingRecord::length)
            .value());
    station.yazici = &printer;
  }

  void write(const char* file, const std::string& bytes) const {
    std::ofstream(station.dosya(file), std::ios::binary) << bytes;
  }
  void addPicture(const char* file, page::Size twips) {
    printer.fixed.pictures[station.dosya(file)] = twips;
  }

  ScriptedPrinter printer;
};

}  // namespace support
