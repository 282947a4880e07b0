// Hosts a bar in a headless container, adds two blocks and drives them by
// number and by key, the way a host application does.

#include <iostream>

#include "vorlex/AutomationError.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

int main() {
  vorlex::HeadlessSite site(200, 24);  // client size in pixels
  vorlex::Vorlex bar(site);
  bar.InitProperties();  // a newly placed control takes its defaults

  bar.AddBlock();
  bar.AddBlock();
  bar.put_BlockKey("cpu", 1);  // keys are set by number
  bar.put_BlockBarLeft(0, "cpu");
  bar.put_BlockBarRight(40, "cpu");
  bar.put_BlockColor(0x0000FF, "cpu");  // colours are 0xBBGGRR: red
  bar.put_IndexBlock(2);
  bar.put_BlockText("!short time!");  // no block argument: IndexBlock
  bar.SetBlockGradientStyle(vorlex::vxLeftHGradient);

  std::cout << "blocks: " << bar.get_Blocks() << "\n";
  std::cout << "block 1 right edge: " << bar.get_BlockBarRight(1) << "\n";
  std::cout << "block 2 text: " << bar.get_BlockText(2) << "\n";
  try {
    bar.get_BlockKey();  // the key is addressed by number only
  } catch (const vorlex::AutomationError& e) {
    std::cout << "error " << e.Number() << ": " << e.what() << "\n";
  }
  return 0;
}
