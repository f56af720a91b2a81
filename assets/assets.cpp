// SPDX-License-Identifier: GPL-3.0-or-later

// The library holds resources alone; a library needs a source file to be one.
