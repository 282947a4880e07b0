// The system's drives through GetDiskFreeSpaceA, its DWORDs read as 32-bit
// signed values.

#include <cctype>
#include <cstdint>
#include <string>

#include "vorlex/DiskService.h"
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace vorlex {
namespace {

char DriveLetter(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

class Win32Disks : public DiskService {
 public:
  explicit Win32Disks(const std::map<char, std::string>& driveMap) {
    for (const auto& [letter, path] : driveMap) {
      if (std::isalpha(static_cast<unsigned char>(letter))) paths_[DriveLetter(letter)] = path;
    }
  }

  bool GetDiskFreeSpaceA(const std::string& rootPath, int32_t& sectorsPerCluster, int32_t& bytesPerSector,
                         int32_t& numberOfFreeClusters, int32_t& totalNumberOfClusters) override {
    std::string root = rootPath;
    if (!rootPath.empty() && !MappedRoot(rootPath[0], root)) return false;
    DWORD sectors = 0;
    DWORD bytes = 0;
    DWORD freeClusters = 0;
    DWORD totalClusters = 0;
    if (!::GetDiskFreeSpaceA(root.c_str(), &sectors, &bytes, &freeClusters, &totalClusters)) return false;
    sectorsPerCluster = static_cast<int32_t>(sectors);
    bytesPerSector = static_cast<int32_t>(bytes);
    numberOfFreeClusters = static_cast<int32_t>(freeClusters);
    totalNumberOfClusters = static_cast<int32_t>(totalClusters);
    return true;
  }

 private:
  // A letter the map names reports the volume that holds its folder; the
  // others are the system's own. False when the folder has no volume.
  bool MappedRoot(char letter, std::string& root) const {
    const auto mapped = paths_.find(DriveLetter(letter));
    if (mapped == paths_.end()) return true;
    char volume[MAX_PATH + 1] = {};
    if (!::GetVolumePathNameA(mapped->second.c_str(), volume, sizeof volume)) return false;
    root = volume;
    return true;
  }

  std::map<char, std::string> paths_;
};

}  // namespace

std::unique_ptr<DiskService> SystemDisks(const std::map<char, std::string>& driveMap) {
  return std::make_unique<Win32Disks>(driveMap);
}

}  // namespace vorlex
