#pragma once

// Where the links of the About window lead.  Neutral addresses of a domain that is reserved for
// documentation: whoever distributes the program sets its own here.
namespace MakerAddresses {
inline constexpr const char* HomePage = "https://www.example.org/tnt4swx";
inline constexpr const char* SupportMail = "support@example.org";
} // namespace MakerAddresses
