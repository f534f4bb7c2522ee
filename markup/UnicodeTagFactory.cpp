#include "markup/UnicodeTagFactory.h"

UnicodeTagFactory::~UnicodeTagFactory() = default;
