#include "MvFoto/MvFotoSource.h"

MvFotoSource::~MvFotoSource() = default;
