#pragma once

// Shows the About box: title, credits, the link to the project's page and the template package's
// readme. Returns when the user has closed it.
void OpenAbout();
