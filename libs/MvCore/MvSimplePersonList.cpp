#include "MvCore/MvSimplePersonList.h"

MvSimplePersonList::~MvSimplePersonList() = default;
