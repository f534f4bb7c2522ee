#include "markup/TevoTagFactory.h"

TevoTagFactory::~TevoTagFactory() = default;
