// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// Holds every object of the engine, so that what it links is what the engine links.

int main()
{
    return 0;
}
