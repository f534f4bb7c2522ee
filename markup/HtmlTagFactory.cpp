#include "markup/HtmlTagFactory.h"

HtmlTagFactory::~HtmlTagFactory() = default;
