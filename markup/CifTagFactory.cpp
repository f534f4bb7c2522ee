#include "markup/CifTagFactory.h"

CifTagFactory::~CifTagFactory() = default;
