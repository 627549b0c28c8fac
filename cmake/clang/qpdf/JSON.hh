// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// Stands before the header of libqpdf of this name where the compiler is a clang before 15: it makes the destructor of a
/// vector of the class before the class is complete, which C++20 does not ask for. Ours need no more than the name.
class JSON;
