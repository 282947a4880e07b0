#pragma once
// The three property pages by kind, for hosts that make them from a class
// identity or a menu entry.

#include <memory>

#include "editors/property_page.h"

namespace vorlex::editors {

enum class PageKind { Block, Caption, Boundaries };

std::unique_ptr<PropertyPage> MakePropertyPage(PageKind kind, PageView& view, DialogService& dialogs);

}  // namespace vorlex::editors
