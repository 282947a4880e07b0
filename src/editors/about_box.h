#pragma once
// The About box (frmAbout): the product's name and version, the maker's lines,
// a gradient panel, and a System Info button that starts the system's
// information viewer found through the registry.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "editors/page_view.h"

namespace vorlex::editors {

// The system calls the About box makes, shaped as the Win32 ones (return
// values are Win32 error codes, 0 for success).
class AboutSystem {
 public:
  virtual ~AboutSystem() = default;
  virtual long RegOpenKeyExA(uint32_t root, const std::string& subKey, uint32_t access, uintptr_t* key) = 0;
  virtual long RegQueryValueExA(uintptr_t key, const std::string& valueName, uint32_t* type, uint8_t* data,
                                uint32_t* size) = 0;
  virtual long RegCloseKey(uintptr_t key) = 0;
  virtual bool FileExists(const std::string& path) = 0;
  // Starts a program with normal focus; a failure raises an automation error.
  virtual void StartProgram(const std::string& path) = 0;
  // A message box with only an OK button.
  virtual void MessageBox(const std::string& text) = 0;
};

inline constexpr uint32_t kHKeyLocalMachine = 0x80000002u;
inline constexpr uint32_t kKeyAllAccess = 0x2003Fu;
inline constexpr uint32_t kRegSz = 1;
inline constexpr uint32_t kRegDword = 4;

class AboutBox {
 public:
  static constexpr std::string_view kCaption = "About Vorlex ActiveX control";
  static constexpr std::string_view kName = "Vorlex";
  static constexpr std::string_view kVersionDesignText = "ActiveX control, Version";
  static constexpr std::string_view kUnavailable = "System Information Is Unavailable At This Time";
  static constexpr OLE_COLOR kPanelBackColor = 0x80FFFF;
  static constexpr OLE_COLOR kPanelColor = 0x808080;
  static constexpr OLE_COLOR kPanelColorEnd = 0xE0E0E0;

  // random gives numbers in [0, 1) and is seeded by the caller; the default
  // draws from a generator seeded from the clock at Form_Load.
  AboutBox(PageView& view, AboutSystem& system, std::function<float()> random = {});

  // The texts the box shows, each for its label (name and text).
  struct Label {
    std::string_view control;
    std::string text;
  };
  static std::vector<Label> Labels();
  // "Version 1.0.12": the control's major, minor and revision numbers.
  static std::string VersionLine();

  void Form_Load();
  void Picture1_Paint();
  void cmdSysInfo_Click() { StartSysInfo(); }
  void cmdOK_Click() { closed_ = true; }

  void StartSysInfo();
  // Reads one registry value as text: strings up to their null, 32-bit
  // numbers as the hexadecimal digits of their bytes from the most
  // significant down. False when the key or the value cannot be read.
  bool GetKeyValue(uint32_t keyRoot, const std::string& keyName, const std::string& subKeyRef, std::string& keyVal);

  int16_t ColorDepth() const { return depth_; }
  // Replaces the depth read at load: a panel shown on another display than
  // the one it was loaded for.
  void UseColorDepth(int16_t depth) { depth_ = depth; }
  bool Closed() const { return closed_; }
  // The granularity the panel was last painted with, -1 before any paint.
  int16_t LastGranularity() const { return lastGranularity_; }

 private:
  PageView& view_;
  AboutSystem& system_;
  std::function<float()> random_;
  int16_t depth_ = 0;
  int16_t lastGranularity_ = -1;
  bool closed_ = false;
};

}  // namespace vorlex::editors
