// Drive geometry through SystemDisks: statvfs behind drive letters elsewhere,
// the system's drives on Windows.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "vorlex/DiskService.h"

#ifndef _WIN32
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#endif

using namespace vorlex;

namespace {

struct Geometry {
  int32_t sectorsPerCluster = -7;
  int32_t bytesPerSector = -7;
  int32_t freeClusters = -7;
  int32_t totalClusters = -7;
  bool Untouched() const {
    return sectorsPerCluster == -7 && bytesPerSector == -7 && freeClusters == -7 && totalClusters == -7;
  }
};

bool Ask(DiskService& disks, const std::string& root, Geometry& g) {
  return disks.GetDiskFreeSpaceA(root, g.sectorsPerCluster, g.bytesPerSector, g.freeClusters, g.totalClusters);
}

uint32_t Bits(int32_t value) { return static_cast<uint32_t>(value); }

}  // namespace

TEST(SystemDisks, UnknownDriveFailsAndLeavesTheValues) {
  const auto disks = SystemDisks();
  for (const char* root : {"!:\\", ""}) {
    SCOPED_TRACE(root);
    Geometry g;
    EXPECT_FALSE(Ask(*disks, root, g));
    EXPECT_TRUE(g.Untouched());
  }
}

#ifdef _WIN32

TEST(SystemDisks, DriveCHasAGeometry) {
  const auto disks = SystemDisks();
  Geometry g;
  ASSERT_TRUE(Ask(*disks, "C:\\", g));
  EXPECT_GT(g.sectorsPerCluster, 0);
  EXPECT_GT(g.bytesPerSector, 0);
  EXPECT_NE(g.totalClusters, 0);
  EXPECT_LE(Bits(g.freeClusters), Bits(g.totalClusters));
}

// A mapped letter reports the volume of its folder: here Q, which no system
// drive has, reports drive C's volume through C's Windows folder.
TEST(SystemDisks, AMappedLetterReportsTheVolumeOfItsFolder) {
  Geometry unmapped;
  EXPECT_FALSE(Ask(*SystemDisks(), "Q:\\", unmapped));
  const auto disks = SystemDisks({{'q', "C:\\windows"}});
  Geometry q;
  Geometry c;
  ASSERT_TRUE(Ask(*disks, "Q:\\", q));
  ASSERT_TRUE(Ask(*disks, "C:\\", c));
  EXPECT_EQ(q.sectorsPerCluster, c.sectorsPerCluster);
  EXPECT_EQ(q.bytesPerSector, c.bytesPerSector);
  EXPECT_EQ(q.totalClusters, c.totalClusters);
}

#else

namespace {

// A directory of its own under the temporary folder, removed at the end.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vorlex-disks-XXXXXX").string();
    if (mkdtemp(pattern.data()) != nullptr) path_ = pattern;
  }
  ~TemporaryDirectory() {
    if (!path_.empty()) rmdir(path_.c_str());
  }
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

// What the geometry of a mount path should be, from statvfs.
void ExpectGeometryOf(const std::string& path, const Geometry& g) {
  struct statvfs fs {};
  ASSERT_EQ(statvfs(path.c_str(), &fs), 0);
  ASSERT_EQ(fs.f_frsize % 512, 0u);
  EXPECT_EQ(g.bytesPerSector, 512);
  EXPECT_EQ(static_cast<uint64_t>(g.sectorsPerCluster) * 512u, fs.f_frsize);
  EXPECT_EQ(Bits(g.totalClusters), std::min<uint64_t>(fs.f_blocks, 0xFFFFFFFFu));
  EXPECT_GT(Bits(g.freeClusters), 0u);
  EXPECT_LE(Bits(g.freeClusters), Bits(g.totalClusters));
  // Free space moves while the test runs: within 1% of the volume.
  const uint64_t free = std::min<uint64_t>(fs.f_bavail, 0xFFFFFFFFu);
  const uint64_t gap = free > Bits(g.freeClusters) ? free - Bits(g.freeClusters) : Bits(g.freeClusters) - free;
  EXPECT_LE(gap, Bits(g.totalClusters) / 100 + 16);
}

}  // namespace

TEST(SystemDisks, DriveCIsTheRootByDefault) {
  const auto disks = SystemDisks();
  for (const char* root : {"C:\\", "c:\\"}) {
    SCOPED_TRACE(root);
    Geometry g;
    ASSERT_TRUE(Ask(*disks, root, g));
    ExpectGeometryOf("/", g);
  }
}

TEST(SystemDisks, MappedLettersAreTheirPaths) {
  const TemporaryDirectory dir;
  ASSERT_FALSE(dir.Path().empty());
  for (const char key : {'D', 'd'}) {
    SCOPED_TRACE(std::string(1, key));
    const auto disks = SystemDisks({{key, dir.Path()}});
    for (const char* root : {"D:\\", "d:\\"}) {
      Geometry g;
      ASSERT_TRUE(Ask(*disks, root, g)) << root;
      ExpectGeometryOf(dir.Path(), g);
    }
    Geometry c;
    EXPECT_TRUE(Ask(*disks, "C:\\", c));
  }
}

TEST(SystemDisks, UnmappedLettersFail) {
  const auto disks = SystemDisks({{'D', "/"}});
  for (const char* root : {"E:\\", "z:\\", "1:\\"}) {
    SCOPED_TRACE(root);
    Geometry g;
    EXPECT_FALSE(Ask(*disks, root, g));
    EXPECT_TRUE(g.Untouched());
  }
}

TEST(SystemDisks, AMissingPathFailsAndLeavesTheValues) {
  const TemporaryDirectory dir;
  ASSERT_FALSE(dir.Path().empty());
  const auto disks = SystemDisks({{'C', dir.Path() + "/missing"}});
  Geometry g;
  EXPECT_FALSE(Ask(*disks, "C:\\", g));
  EXPECT_TRUE(g.Untouched());
}

#endif  // _WIN32
