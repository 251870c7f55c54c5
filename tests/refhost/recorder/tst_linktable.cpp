// SPDX-License-Identifier: MIT
int main() {}
