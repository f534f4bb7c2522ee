#include "markup/CifTextTagFactory.h"

CifTextTagFactory::~CifTextTagFactory() = default;
