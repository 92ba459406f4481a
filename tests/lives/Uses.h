/// What users and hosts do with controls beside their lives, for calls of the system that lives do not make.
#pragma once

#include "Lives.h"

const std::vector<Life>& uses();
