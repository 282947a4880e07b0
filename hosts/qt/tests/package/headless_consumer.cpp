#include <cstdio>

#include "vorlex/HeadlessSite.h"
#include "vorlex/Vorlex.h"

int main() {
  vorlex::HeadlessSite site(40, 10);
  vorlex::Vorlex bar(site);
  bar.InitProperties();
  bar.AddBlock();
  bar.put_BlockBarRight(50, vorlex::Variant(static_cast<int16_t>(1)));
  bar.Refresh();
  std::printf("blocks %d painted %d\n", bar.get_Blocks(), site.Paints() > 0 ? 1 : 0);
  return 0;
}
