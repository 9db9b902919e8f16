a
	b  
cd
e

fin