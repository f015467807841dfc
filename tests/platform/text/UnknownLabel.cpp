// Must not compile: the label's last character has no row in the GBK table.
#include "platform/text/Gbk.h"

static constexpr auto Label = Gbk(u8"梁柱");

const char* UnknownLabel() { return Label; }
