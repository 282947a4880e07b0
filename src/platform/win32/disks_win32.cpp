// The system's drives through GetDiskFreeSpaceA, its DWORDs read as 32-bit
// signed values.

#include <cstdint>

#include "vorlex/DiskService.h"
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace vorlex {
namespace {

class Win32Disks : public DiskService {
 public:
  bool GetDiskFreeSpaceA(const std::string& rootPath, int32_t& sectorsPerCluster, int32_t& bytesPerSector,
                         int32_t& numberOfFreeClusters, int32_t& totalNumberOfClusters) override {
    DWORD sectors = 0;
    DWORD bytes = 0;
    DWORD freeClusters = 0;
    DWORD totalClusters = 0;
    if (!::GetDiskFreeSpaceA(rootPath.c_str(), &sectors, &bytes, &freeClusters, &totalClusters)) return false;
    sectorsPerCluster = static_cast<int32_t>(sectors);
    bytesPerSector = static_cast<int32_t>(bytes);
    numberOfFreeClusters = static_cast<int32_t>(freeClusters);
    totalNumberOfClusters = static_cast<int32_t>(totalClusters);
    return true;
  }
};

}  // namespace

// Drive letters are the system's: the map serves only the other platforms.
std::unique_ptr<DiskService> SystemDisks(const std::map<char, std::string>&) { return std::make_unique<Win32Disks>(); }

}  // namespace vorlex
