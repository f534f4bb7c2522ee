#include "markup/ScriptTagFactory.h"

ScriptTagFactory::~ScriptTagFactory() = default;
