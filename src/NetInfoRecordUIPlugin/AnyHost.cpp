// SPDX-License-Identifier: MIT
// Empty on purpose: stands for a host's library at link time, where its name is all
// that counts.
