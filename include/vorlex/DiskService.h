#pragma once
// Disk geometry with GetDiskFreeSpaceA semantics, behind which a platform or a
// test puts its volumes.

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace vorlex {

class DiskService {
 public:
  virtual ~DiskService() = default;
  // rootPath is a drive root such as "C:\". The four values are what the
  // platform reports as 32-bit signed numbers; false when the query fails.
  virtual bool GetDiskFreeSpaceA(const std::string& rootPath, int32_t& sectorsPerCluster, int32_t& bytesPerSector,
                                 int32_t& numberOfFreeClusters, int32_t& totalNumberOfClusters) = 0;
};

// The platform's disks. On Windows drive letters are the system's, except that
// a letter the map names reports the volume holding its folder; elsewhere
// each letter (upper case) maps to a mount path, "C" to "/" unless the map
// says otherwise, and unmapped letters fail.
std::unique_ptr<DiskService> SystemDisks(const std::map<char, std::string>& driveMap = {});

}  // namespace vorlex
