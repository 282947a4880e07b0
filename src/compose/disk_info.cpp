#include "compose/disk_info.h"

#include <cmath>

#include "vorlex/AutomationError.h"
#include "vorlex/Numeric.h"

namespace vorlex::modDiskInfo {

namespace {

struct Query {
  bool ok = false;
  int32_t sectorsPerCluster = 0;
  int32_t bytesPerSector = 0;
  int32_t freeClusters = 0;
  int32_t totalClusters = 0;
  // The products overflow-check even after a failed call, which multiplies zeros.
  int32_t BytesPerCluster() const { return CheckedMul(sectorsPerCluster, bytesPerSector); }
  int32_t Free() const { return CheckedMul(BytesPerCluster(), freeClusters); }
  int32_t Total() const { return CheckedMul(BytesPerCluster(), totalClusters); }
};

Query Ask(DiskService& disks, const std::string& drive) {
  Query q;
  q.ok = disks.GetDiskFreeSpaceA(drive + ":\\", q.sectorsPerCluster, q.bytesPerSector, q.freeClusters, q.totalClusters);
  return q;
}

std::string Bytes(const ClockService& locale, bool ok, int32_t value) {
  return ok ? FormatGroupedCount(value, locale.ThousandsSeparator()) : "?";
}

double Quotient(int32_t free, int32_t total) {
  if (total == 0) RaiseError(kErrDivisionByZero);
  return static_cast<double>(free) / total;
}

}  // namespace

std::string FormatGroupedCount(double value, const std::string& separator) {
  const double rounded = RoundHalfEven(std::fabs(value));
  std::string digits = std::to_string(static_cast<long long>(rounded));
  if (digits.size() < 4) digits.insert(0, 4 - digits.size(), '0');
  std::string out;
  for (size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) out += separator;
    out += digits[i];
  }
  return (value < 0 && rounded != 0 ? "-" : "") + out;
}

std::string DiskFree(DiskService& disks, const ClockService& locale, const std::string& Drive) {
  const Query q = Ask(disks, Drive);
  const int32_t free = q.Free();
  return Bytes(locale, q.ok, free);
}

std::string DiskUsed(DiskService& disks, const ClockService& locale, const std::string& Drive) {
  const Query q = Ask(disks, Drive);
  const int32_t free = q.Free();
  const int32_t total = q.Total();
  return Bytes(locale, q.ok, CheckedSub(total, free));
}

std::string DiskTotal(DiskService& disks, const ClockService& locale, const std::string& Drive) {
  const Query q = Ask(disks, Drive);
  const int32_t total = q.Total();
  return Bytes(locale, q.ok, total);
}

float DiskRatioFree(DiskService& disks, const std::string& Drive) {
  const Query q = Ask(disks, Drive);
  const int32_t free = q.Free();
  const int32_t total = q.Total();
  if (!q.ok) return 0;
  return static_cast<float>(IntFloor(Quotient(free, total) * 100));
}

float DiskRatioUsed(DiskService& disks, const std::string& Drive) {
  const Query q = Ask(disks, Drive);
  const int32_t free = q.Free();
  const int32_t total = q.Total();
  if (!q.ok) return 0;
  return static_cast<float>(IntFloor((1 - Quotient(free, total)) * 100));
}

}  // namespace vorlex::modDiskInfo
