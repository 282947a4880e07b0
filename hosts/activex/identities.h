#pragma once
// The fixed identities of the type library, its types and the control class.

#include <array>
#include <string_view>

namespace vorlex::activex {

inline constexpr std::string_view kLibraryName = "VorlexLib";
inline constexpr std::string_view kLibraryId = "EB145559-0053-496A-A287-803CF0F1C14D";
inline constexpr int kLibraryMajor = 1;
inline constexpr int kLibraryMinor = 0;
inline constexpr std::string_view kClassName = "Vorlex";
inline constexpr std::string_view kClassId = "16410A3D-1913-4297-8C6E-60C6CDC047CF";
inline constexpr std::string_view kProgId = "VorlexLib.Vorlex";
inline constexpr std::string_view kVersionedProgId = "VorlexLib.Vorlex.1";
inline constexpr std::string_view kInterfaceId = "3A653B60-A38F-486C-93FC-69F0CC17ECEE";
inline constexpr std::string_view kEventInterfaceId = "2A65550F-DDD8-41F9-9807-4F86D7A29FAE";

// The property pages' classes, with the names their registry keys carry.
struct PageClass {
  std::string_view name;
  std::string_view uuid;
};
inline constexpr std::array<PageClass, 3> kPageClasses = {{
    {"Vorlex Block property page", "6E51D0BF-4086-4A2C-BAF1-3EE71E0CB742"},
    {"Vorlex Caption property page", "AF900A0F-B386-4A4F-96A0-65D73138B070"},
    {"Vorlex Boundaries property page", "0F852A94-3894-4F50-AB68-42844E14828D"},
}};

struct EnumerationId {
  std::string_view name;
  std::string_view uuid;
};

// Each published enumeration's type identifier.
inline constexpr std::array<EnumerationId, 14> kEnumerationIds = {{
    {"vxAlignmentEnum", "4E9F989C-3495-4042-B2C2-E70C0FAFB407"},
    {"vxAutoAngleEnum", "8B2F40E3-8E03-4CE6-87C5-9DD19E4E48CE"},
    {"vxAutoSizeEnum", "A276D9DC-516C-48F7-9817-B46C26A2E8E6"},
    {"vxBorderStyleEnum", "6A30C143-95E2-4EFA-805E-3496BC7289F0"},
    {"vxBrushStyleEnum", "96C25ABB-29E9-43C3-9DC8-90961B401A16"},
    {"vxClearAllEnum", "6A666892-005D-44C0-82AF-89E14BBAADB6"},
    {"vxFont3DEnum", "7673B2C2-BD55-49AA-8EE1-0789B2BC7497"},
    {"vxGradientGranularityEnum", "4C32CF0B-001B-4C02-8301-2F2891611E74"},
    {"vxGradientStyleEnum", "D927EEF5-7ABE-4E97-A0B4-1A3EA509FAA6"},
    {"vxOrientationEnum", "37018AE1-1C5B-4A45-9B65-CD6828421DD0"},
    {"vxRivetsStyleEnum", "F8A52C31-D98C-47CD-B27F-3BC649EB3F45"},
    {"vxShapeStyleEnum", "673B04AE-59B1-4E62-88CD-A88207A239C6"},
    {"vxSpecialClearAllBlockEnum", "27E16B64-FD2D-4E63-B5E6-8E1DBD444042"},
    {"vxTileEnum", "D230B44B-32E6-438F-8BFA-4DA08B2A6E85"},
}};

}  // namespace vorlex::activex
