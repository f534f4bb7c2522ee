#include "markup/QtTagFactory.h"

QtTagFactory::~QtTagFactory() = default;
