// Marks what RankerModule lets out of its hidden-visibility shared object.
#pragma once

#define RANKER_API __attribute__((visibility("default")))
