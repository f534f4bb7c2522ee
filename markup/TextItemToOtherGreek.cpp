#include "markup/TextItemToOtherGreek.h"

TextItemToOtherGreek::~TextItemToOtherGreek() = default;
