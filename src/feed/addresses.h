// The fixed addresses of the program. Everything else comes from the host table.
#pragma once

namespace skyloft {

// Web host of the host table, and the path of the table there.
inline constexpr const char* kWebHost = "www.skyloft.example";
inline constexpr const char* kHostTablePath = "/skyloft/config/hosts.xml";
// Written into pages; the display answers it with a sheet of its own.
inline constexpr const char* kStyleSheet = "http://www.skyloft.example/skyloft/style.css";
// Folder of the scroller's program, as the scroll pages name it; the display has its own scroller.
inline constexpr const char* kScrollerFolder = "http://www.skyloft.example/skyloft/includes/";
inline constexpr const char* kSupportMail = "mailto:support@skyloft.example";
// The program's own version, as the host table tells versions.
inline constexpr const char* kOwnVersion = "1.20.00";

}  // namespace skyloft
