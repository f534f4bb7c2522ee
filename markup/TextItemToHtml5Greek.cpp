#include "markup/TextItemToHtml5Greek.h"

TextItemToHtml5Greek::~TextItemToHtml5Greek() = default;
