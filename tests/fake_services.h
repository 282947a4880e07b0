#pragma once
// Deterministic disks and clock for tests.

#include <cctype>
#include <map>
#include <string>

#include "vorlex/ClockService.h"
#include "vorlex/DiskService.h"

namespace vorlex::testing {

struct FakeDisk {
  int32_t sectorsPerCluster = 1;
  int32_t bytesPerSector = 512;
  int32_t freeClusters = 0;
  int32_t totalClusters = 0;
};

class FakeDisks : public DiskService {
 public:
  bool GetDiskFreeSpaceA(const std::string& rootPath, int32_t& spc, int32_t& bps, int32_t& free,
                         int32_t& total) override {
    ++queries;
    lastRoot = rootPath;
    std::string key = rootPath;
    for (char& ch : key) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    auto it = disks.find(key);
    if (it == disks.end()) return false;
    spc = it->second.sectorsPerCluster;
    bps = it->second.bytesPerSector;
    free = it->second.freeClusters;
    total = it->second.totalClusters;
    return true;
  }
  std::map<std::string, FakeDisk> disks;  // by root path, "C:\"
  int queries = 0;
  std::string lastRoot;
};

// Formats as "<name of the format>" so tests see which one was used.
class FakeClock : public ClockService {
 public:
  LocalDateTime Now() const override {
    ++calls;
    return now;
  }
  std::string Format(const LocalDateTime&, NamedFormat format) const override {
    static const char* kNames[] = {"<short time>", "<medium time>", "<long time>", "<general date>",
                                   "<short date>", "<medium date>", "<long date>"};
    return kNames[static_cast<int>(format)];
  }
  std::string ThousandsSeparator() const override { return separator; }
  LocalDateTime now;
  std::string separator = ",";
  mutable int calls = 0;
};

}  // namespace vorlex::testing
