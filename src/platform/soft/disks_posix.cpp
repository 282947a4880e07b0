// Drive letters over mount paths: a drive's geometry from statvfs, in the
// shape and 32-bit signed view of GetDiskFreeSpaceA.

#include <sys/statvfs.h>

#include <algorithm>
#include <cctype>
#include <cstdint>

#include "vorlex/DiskService.h"

namespace vorlex {
namespace {

// The low 32 bits of a count clamped to an unsigned 32-bit value, as the
// platform's DWORDs read through a signed 32-bit view.
int32_t Signed32(uint64_t value) {
  return static_cast<int32_t>(static_cast<uint32_t>(std::min<uint64_t>(value, 0xFFFFFFFFu)));
}

char DriveLetter(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

class PosixDisks : public DiskService {
 public:
  explicit PosixDisks(const std::map<char, std::string>& driveMap) {
    // Lower-case keys sort after upper-case ones: going backwards, an upper-case
    // key wins over the same letter in lower case.
    for (auto entry = driveMap.rbegin(); entry != driveMap.rend(); ++entry) {
      if (std::isalpha(static_cast<unsigned char>(entry->first))) paths_[DriveLetter(entry->first)] = entry->second;
    }
    paths_.try_emplace('C', "/");
  }

  bool GetDiskFreeSpaceA(const std::string& rootPath, int32_t& sectorsPerCluster, int32_t& bytesPerSector,
                         int32_t& numberOfFreeClusters, int32_t& totalNumberOfClusters) override {
    if (rootPath.empty() || !std::isalpha(static_cast<unsigned char>(rootPath[0]))) return false;
    const auto mount = paths_.find(DriveLetter(rootPath[0]));
    if (mount == paths_.end()) return false;
    struct statvfs fs {};
    if (::statvfs(mount->second.c_str(), &fs) != 0) return false;
    const uint64_t fragment = fs.f_frsize != 0 ? fs.f_frsize : fs.f_bsize;
    const bool whole = fragment != 0 && fragment % 512 == 0;
    bytesPerSector = whole ? 512 : Signed32(fragment);
    sectorsPerCluster = whole ? Signed32(fragment / 512) : 1;
    numberOfFreeClusters = Signed32(fs.f_bavail);
    totalNumberOfClusters = Signed32(fs.f_blocks);
    return true;
  }

 private:
  std::map<char, std::string> paths_;
};

}  // namespace

std::unique_ptr<DiskService> SystemDisks(const std::map<char, std::string>& driveMap) {
  return std::make_unique<PosixDisks>(driveMap);
}

}  // namespace vorlex
