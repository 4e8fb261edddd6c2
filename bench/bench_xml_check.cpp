// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
// The streaming check before the DOM: what it adds to parsing an ordinary large descriptor.
#include "descriptor/DataXML.h"
#include "descriptor/XmlCheck.h"

#include "bench/Bench.h"

int main()
{
    QByteArray document("<update_data>");
    for (int i = 0; i < 20000; ++i) {
        document += "<package>package-" + QByteArray::number(i) + " 1.0-" + QByteArray::number(i)
            + "</package>\n";
    }
    document += "</update_data>";

    bool accepted = false;
    const double check = bestOf(3, [&] {
        accepted = XmlCheck().accepts(document);
    });
    bool parsed = false;
    const double dom = bestOf(3, [&] {
        parsed = QDomDocument().setContent(document);
    });
    if (!accepted || !parsed) {
        std::printf("FAIL xml_check: the document was refused\n");
        return 1;
    }
    return report("checking 20,000 elements", check, "building their DOM", dom, 1.0) ? 0 : 1;
}
