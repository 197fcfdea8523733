// What the product is called.

#pragma once

constexpr const char* product_name = "Tamborel";
constexpr int product_version_major = 1;
constexpr int product_version_minor = 4;
constexpr const char* product_version = "1.4";
