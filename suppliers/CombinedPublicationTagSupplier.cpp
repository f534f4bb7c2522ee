#include "suppliers/CombinedPublicationTagSupplier.h"

std::string CombinedPublicationTagSupplier::begin_jnl() const { return "<j>"; }
std::string CombinedPublicationTagSupplier::end_jnl() const { return "</j>"; }
std::string CombinedPublicationTagSupplier::begin_vol() const { return "<v>"; }
std::string CombinedPublicationTagSupplier::end_vol() const { return "</v>"; }
std::string CombinedPublicationTagSupplier::begin_year() const { return "<y>"; }
std::string CombinedPublicationTagSupplier::end_year() const { return "</y>"; }
std::string CombinedPublicationTagSupplier::begin_page() const { return "<p>"; }
std::string CombinedPublicationTagSupplier::end_page() const { return "</p>"; }
