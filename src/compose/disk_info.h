#pragma once
// modDiskInfo: the figures of the disk tokens, read afresh on every call.

#include <string>

#include "vorlex/ClockService.h"
#include "vorlex/DiskService.h"

namespace vorlex::modDiskInfo {

// Byte counts formatted "0,0,0,0" with the locale's separator; "?" on failure.
std::string DiskFree(DiskService& disks, const ClockService& locale, const std::string& Drive);
std::string DiskUsed(DiskService& disks, const ClockService& locale, const std::string& Drive);
std::string DiskTotal(DiskService& disks, const ClockService& locale, const std::string& Drive);
// Whole percentages, Int truncated; 0 on failure.
float DiskRatioFree(DiskService& disks, const std::string& Drive);
float DiskRatioUsed(DiskService& disks, const std::string& Drive);

// Digits grouped by threes with the separator, at least four digits ("0,005").
std::string FormatGroupedCount(double value, const std::string& separator);

}  // namespace vorlex::modDiskInfo
