#pragma once
// The Block page: edits the blocks of the first selected control on a working
// copy of its block list, taken when the page is first shown and written back
// on Apply. Add and Remove act on the control at once.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "control/block_definition.h"
#include "editors/property_page.h"

namespace vorlex::editors {

class BlockPage final : public PropertyPage {
 public:
  // Fills the lists and clears the working-copy-loaded flag (the page's
  // Initialize).
  BlockPage(PageView& view, DialogService& dialogs);

  std::string_view Caption() const override { return "&Block"; }
  std::vector<std::string> ControlNames() const override;

  void SelectionChanged() override;
  void ApplyChanges() override;
  void ControlEvent(std::string_view control) override;

  bool WorkingCopyLoaded() const { return loaded_; }
  int16_t CurrentBlock() const { return current_; }
  // Elements 0 to the highest block the page has seen; element 0 is spare.
  const std::vector<BlockDefinition>& WorkingCopy() const { return work_; }

  // The live-text formats cbxTextFormat offers, in its order.
  static const std::vector<std::string>& TextFormats();
  // The filter of the picture's open-file dialog.
  static constexpr std::string_view kPictureFilter =
      "All (*.bmp;*.gif;*.ico;*.jpg;*.jpeg;*.emf;*.wmf)|*.bmp;*.gif;*.ico;*.jpg;*.jpeg;*.emf;*.wmf|"
      "Bitmaps (*.bmp)|*.bmp|Gifs (*.gif)|*.gif|Icons (*.ico)|*.ico|JPG-JPEG (*.jpg;*.jpeg)|*.jpg;*.jpeg|"
      "Metafiles (*.emf;*.wmf)|*.emf;*.wmf";

 private:
  // The current record; error 9 when the index is outside the working copy.
  BlockDefinition& Record();
  void ShowCurrentBlock();
  void ShowGradientChannels();
  void RefreshPreviews();
  void PaintChannelPreview(std::string_view bar, int channel, OLE_COLOR color);
  void PaintResultPreview();
  void PaintPreview(std::string_view box, OLE_COLOR color, OLE_COLOR colorEnd);
  void ClearPreviews();

  void ReadBlock(ControlObject& control, int16_t index);
  void WriteBlock(ControlObject& control, int16_t index);

  // Handlers, named after the control and event they answer.
  void HScroll1_Change();
  void cmdAddBlock_Click();
  void cmdRemoveBlock_Click();
  void StoreNumber(std::string_view control, int16_t BlockDefinition::*field);
  void StoreFlag(std::string_view control, VARIANT_BOOL BlockDefinition::*field);
  void StoreListIndex(std::string_view control, int16_t BlockDefinition::*field);
  void cbxTextFormat_Click();
  void ChooseColor(std::string_view swatch, OLE_COLOR BlockDefinition::*field, bool asForeColor);
  void cmdFontSelection_Click();
  void cmdBrowse_Click();
  void cmdRemove_Click();
  void GradientBar_Change(std::string_view bar, bool endColor, int channel);

  std::vector<BlockDefinition> work_;
  int16_t current_ = 0;
  bool loaded_ = false;
};

}  // namespace vorlex::editors
