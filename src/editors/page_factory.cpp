#include "editors/page_factory.h"

#include "editors/block_page.h"
#include "editors/boundaries_page.h"
#include "editors/caption_page.h"

namespace vorlex::editors {

std::unique_ptr<PropertyPage> MakePropertyPage(PageKind kind, PageView& view, DialogService& dialogs) {
  switch (kind) {
    case PageKind::Block:
      return std::make_unique<BlockPage>(view, dialogs);
    case PageKind::Caption:
      return std::make_unique<CaptionPage>(view, dialogs);
    case PageKind::Boundaries:
      break;
  }
  return std::make_unique<BoundariesPage>(view, dialogs);
}

}  // namespace vorlex::editors
